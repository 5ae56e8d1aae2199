// Check boxes, lists and list boxes survive what a slot does to them, to their models and to their control.

#include "tests/support/deed_play.h"
#include "tests/support/lines_model.h"
#include "vexel/controls/check_box.h"
#include "vexel/controls/list_box.h"
#include "vexel/platform/painter.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Step = std::function<void(CTestHost&)>;

// Presses and releases in the middle of a line that is 10 pixels high, with a paint after each step.
std::vector<Step> ClickAt(int y)
{
    auto const paint = [](CTestHost& host) { host.Paint(); };
    return {[y](CTestHost& host) { host.Mouse().Move(20, y); }, paint,
            [](CTestHost& host) { host.Mouse().Press(); },      paint,
            [](CTestHost& host) { host.Mouse().Release(); },    paint};
}

std::vector<Step> operator+(std::vector<Step> first, std::vector<Step> const& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// Asks for its images and changes its mark. In each paint it may ask for one.
class CCheckScene : public CDeedPlay<CCustomCheckBox>
{
public:
    CCheckScene() : CDeedPlay<CCustomCheckBox>({200, 60})
    {
        m_Box->SetCaption("abc");
        WatchWidget(m_Box, {});
        On<CCustomCheckBox*, int, CImageHolder&>("need", m_Box->m_NeedImage);
        On<CCheckBox*>("changed", m_Box->m_CheckChanged);
        On<CButton*>("clicked", m_Box->m_Clicked);
        m_Host->Focus();
    }
    ~CCheckScene() { End(); }

    static std::vector<Step> Steps()
    {
        return ClickAt(10) + ClickAt(10) +
               std::vector<Step>{[](CTestHost& host) { host.Keyboard().Press(vkSpace); },
                                 [](CTestHost& host) { host.Mouse().Leave(); }, [](CTestHost& host) { host.Paint(); }};
    }
    void Run(int misdeedAt = -1, std::function<void(CCheckScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }
    void Set()
    {
        if (IsThere(m_Box))
            m_Box->SetChecked(!m_Box->IsChecked());
    }

    CCustomCheckBox* const m_Box = new CCustomCheckBox(m_Host->Root(), {0, 40}, alTop);
};

// What draws an item, and tells it by a signal.
template <class Base, class... Arguments> class CTellingDrawing : public Base
{
public:
    signal_t<> m_Drawn;

    void DrawItem(Arguments...) override { m_Drawn(); }
};
using CListDrawing = CTellingDrawing<IItemDrawing, IPainter*, int, rectangle<int> const&, bool*>;
using CListBoxDrawing = CTellingDrawing<IListBoxItemDrawing, IPainter*, int, int, rectangle<double> const&, bool*>;

class CListScene : public CDeedPlay<CList>
{
public:
    CListScene() : CDeedPlay<CList>({200, 100})
    {
        m_List->SetHotTrack(true);
        m_List->SetModel(m_Model.get());
        m_List->SetItemDrawing(&m_Drawing);
        WatchWidget(m_List, {});
        On<CList*, int>("clicked", m_List->m_SigItemClicked);
        On<>("drawn", m_Drawing.m_Drawn);
    }
    ~CListScene() { End(); }

    static std::vector<Step> Steps() { return ClickAt(10) + ClickAt(30) + ClickAt(90); }
    void Run(int misdeedAt = -1, std::function<void(CListScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }
    void DeleteModel() { m_Model.reset(); }
    void DropModel()
    {
        if (IsThere(m_List))
            m_List->SetModel(nullptr);
    }

    CListDrawing m_Drawing;
    std::unique_ptr<CLinesModel> m_Model = std::make_unique<CLinesModel>(NumberedLines(3));
    CList* const m_List = new CList(m_Host->Root(), {0, 0}, alClient);
};

class CListBoxScene : public CDeedPlay<CListBox>
{
public:
    CListBoxScene() : CDeedPlay<CListBox>({200, 60})
    {
        CListBoxViewer& rows = m_Box->GetViewer();
        rows.SetAutoRowHeight(false);
        rows.GetRowViewModel()->SetDefaultItemSize(10);
        rows.SetModel(m_Model.get());
        rows.SetItemDrawing(&m_Drawing);
        WatchWidget(m_Box, {});
        On<int>("activated", rows.m_SigItemActivated);
        On<int, int>("current", rows.GetRowSelectionModel()->m_SigCurrentChanged);
        On<>("selected", rows.GetRowSelectionModel()->m_SigSelectionChanged);
        On<>("selection", rows.GetRowSelectionModel()->m_SigChanged);
        On<>("drawn", m_Drawing.m_Drawn);
        m_Host->Focus();
        rows.SetFocus(true);
    }
    ~CListBoxScene() { End(); }

    static std::vector<Step> Steps()
    {
        return ClickAt(15) + ClickAt(35) +
               std::vector<Step>{[](CTestHost& host) { host.Keyboard().Press(vkReturn); },
                                 [](CTestHost& host) { host.Mouse().Leave(); },
                                 [](CTestHost& host) { host.Paint(); },
                                 [](CTestHost& host) { host.Keyboard().Press(vkDown); },
                                 [](CTestHost& host) { host.Keyboard().Press(vkSpace); },
                                 [](CTestHost& host) { host.Paint(); }};
    }
    void Run(int misdeedAt = -1, std::function<void(CListBoxScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }
    void DeleteModel() { m_Model.reset(); }
    void DropModel()
    {
        if (IsThere(m_Box))
            m_Box->GetViewer().SetModel(nullptr);
    }
    void Shrink()
    {
        if (m_Model)
            m_Model->Set(NumberedLines(1));
    }

    CListBoxDrawing m_Drawing;
    std::unique_ptr<CLinesModel> m_Model = std::make_unique<CLinesModel>(NumberedLines(30));
    CListBox* const m_Box = new CListBox(m_Host->Root(), {0, 0}, alClient);
};

template <class Scene> std::vector<SMisdeed<Scene>> WithCommon(std::vector<SMisdeed<Scene>> misdeeds)
{
    misdeeds.insert(misdeeds.end(), {{"DeleteWidget", &Scene::DeleteWidget},
                                     {"DeleteControl", &Scene::DeleteControl},
                                     {"Detach", &Scene::Detach},
                                     {"Hide", &Scene::Hide},
                                     {"Disable", &Scene::Disable},
                                     {"Cancel", [](Scene&) { throw vexel::cancel_processing(); }}});
    return misdeeds;
}

class CheckBoxDeletion : public CDeedTest<CCheckScene>
{};
class ListDeedDeletion : public CDeedTest<CListScene>
{};
class ListBoxDeletion : public CDeedTest<CListBoxScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, CheckBoxDeletion,
                         testing::ValuesIn(WithCommon<CCheckScene>({{"Set", &CCheckScene::Set}})), NameOfDeed());
INSTANTIATE_TEST_SUITE_P(ByDeed, ListDeedDeletion,
                         testing::ValuesIn(WithCommon<CListScene>({{"DeleteModel", &CListScene::DeleteModel},
                                                                   {"DropModel", &CListScene::DropModel}})),
                         NameOfDeed());
INSTANTIATE_TEST_SUITE_P(ByDeed, ListBoxDeletion,
                         testing::ValuesIn(WithCommon<CListBoxScene>({{"DeleteModel", &CListBoxScene::DeleteModel},
                                                                      {"DropModel", &CListBoxScene::DropModel},
                                                                      {"Shrink", &CListBoxScene::Shrink}})),
                         NameOfDeed());

}  // namespace

TEST_P(CheckBoxDeletion, InASlotIsSurvived)
{
    static char const* const signals[] = {"need", "changed", "clicked"};
    DoInEachSlot(signals, [this](std::string const& signal) {
        return Is("Cancel") && signal == "need";  // nobody catches what is thrown in a paint
    });
}

TEST_P(CheckBoxDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CCheckScene& scene) {
        if (scene.IsThere(scene.m_Box) && scene.m_Box->GetControl())
        {
            EXPECT_NE(scene.m_Box->GetClickStage(), CButton::StagePressed);
        }
    });
}

TEST_P(ListDeedDeletion, InASlotIsSurvived)
{
    static char const* const signals[] = {"clicked", "drawn"};
    DoInEachSlot(signals, [this](std::string const& signal) { return Is("Cancel") && signal == "drawn"; });
}

TEST_P(ListDeedDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CListScene& scene) {
        if (scene.IsThere(scene.m_List) && !scene.m_Model)
        {
            EXPECT_EQ(scene.m_List->GetModel(), nullptr);
        }
    });
}

TEST_P(ListBoxDeletion, InASlotIsSurvived)
{
    static char const* const signals[] = {"activated", "current", "selected", "selection", "drawn"};
    DoInEachSlot(signals, [this](std::string const& signal) { return Is("Cancel") && signal == "drawn"; });
}

TEST_P(ListBoxDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CListBoxScene& scene) {
        if (scene.IsThere(scene.m_Box) && !scene.m_Model)
        {
            EXPECT_EQ(scene.m_Box->GetViewer().GetModel(), nullptr);
            EXPECT_EQ(scene.m_Box->GetViewer().GetRowViewModel()->GetCount(), 0);
        }
    });
}
