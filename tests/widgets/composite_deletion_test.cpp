// Tabs, notebooks and sliders survive what a slot, a subclass or a model does to them, to their models and to their
// control, in the middle of their work.

#include "tests/support/deed_play.h"
#include "tests/support/leaf.h"
#include "tests/support/lines_model.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/widgets/notebook.h"
#include "vexel/widgets/slider.h"
#include "vexel/widgets/tabs.h"

#include <set>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Step = std::function<void(CTestHost&)>;

void Paint(CTestHost& host)
{
    host.Paint();
}

Step PressAt(int x, int y)
{
    return [x, y](CTestHost& host) { host.Mouse().Press(x, y); };
}
Step MoveTo(int x, int y)
{
    return [x, y](CTestHost& host) { host.Mouse().Move(x, y); };
}
void Release(CTestHost& host)
{
    host.Mouse().Release();
}

/// What subclasses tell of, since the object itself may die meanwhile: by name of the operation.
struct STold
{
    signal_t<> first;
    signal_t<> second;
    signal_t<> third;
    signal_t<> fourth;
    signal_t<> fifth;
    signal_t<> sixth;
    signal_t<> seventh;
};

/// What all scenes share: the widget stands in a parent of its own.
template <class Scene> std::vector<SMisdeed<Scene>> WithCommon(std::vector<SMisdeed<Scene>> misdeeds)
{
    misdeeds.insert(misdeeds.end(), {{"DeleteWidget", &Scene::DeleteWidget},
                                     {"DeleteParent", &Scene::DeleteParent},
                                     {"DeleteControl", &Scene::DeleteControl},
                                     {"Detach", &Scene::Detach},
                                     {"Hide", &Scene::Hide},
                                     {"Disable", &Scene::Disable}});
    return misdeeds;
}

// Tabs ------------------------------------------------------------------------------------------------------------------------

/// Tells of each operation that may be overridden, before it is done.
class CTellingTabs : public CTabs
{
public:
    CTellingTabs(STold& told, CVisualElement* parent) : CTabs(parent, {0, 20}, alTop), m_Told(told) {}

    int DrawTab(IPainter* painter, int tab, int x) override
    {
        return Tell(m_Told.first) ? CTabs::DrawTab(painter, tab, x) : 10;
    }
    bool TabHitTest(point<int> const& position, IPainter* painter, int tab, int* x) override
    {
        return Tell(m_Told.second) && CTabs::TabHitTest(position, painter, tab, x);
    }
    bool FirstTabHitTest(point<int> const& position, IPainter* painter, int tab) override
    {
        return Tell(m_Told.third) && CTabs::FirstTabHitTest(position, painter, tab);
    }
    int GetTabWidth(IPainter* painter, int tab) const override
    {
        return Tell(m_Told.fourth) ? CTabs::GetTabWidth(painter, tab) : 10;
    }
    void SetCoordSystem(IPainter*) override { Tell(m_Told.fifth); }

private:
    bool Tell(signal_t<>& signal) const
    {
        CAliveGuard const alive(this);
        signal();
        return alive.IsAlive();
    }

    STold& m_Told;
};

/// Lines of text that tell whenever one is asked for.
class CTellingLines : public IItemsModel
{
public:
    explicit CTellingLines(STold& told) : m_Told(told) {}

    int m_Count = 4;

    int GetItemCount() const override
    {
        int const count = m_Count;
        m_Told.sixth();
        return count;
    }
    std::string GetItemCaption(int) const override
    {
        m_Told.seventh();
        return "abc";
    }

private:
    STold& m_Told;
};

class CTabsScene : public CDeedPlay<CTabs>
{
public:
    CTabsScene() : CDeedPlay<CTabs>({100, 60})
    {
        m_Tabs->SetModel(m_Model.get());
        WatchWidget(m_Tabs, {m_Parent});
        On<CVisualElement*, int, int, bool*>("changing", m_Tabs->m_TabChanging);
        On<CVisualElement*, int>("changed", m_Tabs->m_TabChanged);
        On<>("draw tab", m_Told.first);
        On<>("hit", m_Told.second);
        On<>("first hit", m_Told.third);
        On<>("width", m_Told.fourth);
        On<>("coordinates", m_Told.fifth);
        On<>("count", m_Told.sixth);
        On<>("caption", m_Told.seventh);
    }
    ~CTabsScene() { End(); }

    // Tabs of 39 pixels, of which two fit: the second one, the third in part, back by the sliver.
    static std::vector<Step> Steps()
    {
        return {Paint, PressAt(50, 10), Release, Paint, PressAt(92, 10), Release, Paint, PressAt(2, 8), Release, Paint};
    }
    void Run(int misdeedAt = -1, std::function<void(CTabsScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }
    void DeleteParent() { Delete(m_Parent); }
    void DeleteModel() { m_Model.reset(); }
    void DropModel()
    {
        if (IsThere(m_Tabs))
            m_Tabs->SetModel(nullptr);
    }
    void Shrink()
    {
        if (m_Model)
            m_Model->m_Count = 1;
    }
    void Go()
    {
        if (IsThere(m_Tabs))
            m_Tabs->SetCurrentTab(m_Tabs->GetCurrentTab() == 3 ? 0 : 3);
    }
    void Scroll()
    {
        if (IsThere(m_Tabs))
            m_Tabs->SetFirstVisibleTab(m_Tabs->GetFirstVisibleTab() == 3 ? 0 : 3);
    }
    void Squeeze()
    {
        if (IsThere(m_Tabs))
            m_Tabs->SetPos({0, 0, 0, 0}, true);
    }

    STold m_Told;
    std::unique_ptr<CTellingLines> m_Model = std::make_unique<CTellingLines>(m_Told);
    CVisualElement* const m_Parent = new CVisualElement(m_Host->Root(), {0, 0}, alClient);
    CTabs* const m_Tabs = new CTellingTabs(m_Told, m_Parent);
};

// Notebooks -------------------------------------------------------------------------------------------------------------------

/// Tells of each operation of it that a notebook calls.
class CTellingPage : public CLeaf
{
public:
    CTellingPage(STold& told, int look) : CLeaf(nullptr, {10, 10}, alNone, look), m_Told(told) {}

    void SetAlignment(Alignment alignment) override
    {
        CAliveGuard const alive(this);
        m_Told.first();
        if (alive.IsAlive())
            CLeaf::SetAlignment(alignment);
    }
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        CAliveGuard const alive(this);
        m_Told.second();
        if (alive.IsAlive())
            CLeaf::SetPos(rect, force);
    }
    void ProcessSetVisible(bool) override { m_Told.third(); }
    void ChangeParent(CVisualElement*) override { m_Told.fourth(); }

private:
    STold& m_Told;
};

class CNotebookScene : public CDeedPlay<CNotebook>
{
public:
    CNotebookScene() : CDeedPlay<CNotebook>({100, 60})
    {
        for (int i = 0; i < 5; ++i)
        {
            m_Pages.push_back(new CTellingPage(m_Told, i));
            m_Free.insert(m_Pages.back());
            m_Watches.push_back(
                Listen(m_Pages.back()->m_SigDestroy, [this](CVisualElement* dead) { m_Free.erase(dead); }));
        }
        WatchWidget(m_Notebook, {m_Parent, m_Pages[0], m_Pages[1], m_Pages[2], m_Pages[3], m_Pages[4]});
        On<CVisualElement*>("size", m_Notebook->m_SigSize);
        On<CVisualElement*, bool>("hide first", m_Pages[0]->m_SigVisible);
        On<CVisualElement*, bool>("show second", m_Pages[1]->m_SigVisible);
        On<CVisualElement*, bool>("show third", m_Pages[2]->m_SigVisible);
        On<CVisualElement*, bool>("show new", m_Pages[3]->m_SigVisible);
        On<CVisualElement*, IPainter*>("draw", m_Pages[1]->m_SigDraw);
        On<>("align", m_Told.first);
        On<>("place", m_Told.second);
        On<>("visible", m_Told.third);
        On<>("parent", m_Told.fourth);
    }
    ~CNotebookScene()
    {
        End();
        m_Watches.clear();
        for (CVisualElement* const page : std::set<CVisualElement*>(m_Free))
            if (!page->GetParent())
                delete page;
    }

    void Run(int misdeedAt = -1, std::function<void(CNotebookScene&)> const& misdeed = {})
    {
        std::vector<Step> steps;
        for (std::size_t i = 0; i < Steps().size(); ++i)
            steps.push_back([this, i](CTestHost& host) {
                host.Paint();
                if (IsThere(m_Notebook))
                    Steps()[i](*this);
            });
        Play(steps, misdeedAt, [&] { misdeed(*this); });
    }
    static std::vector<std::function<void(CNotebookScene&)>> Steps()
    {
        return {[](CNotebookScene& scene) { scene.Add(0); },
                [](CNotebookScene& scene) { scene.Add(1); },
                [](CNotebookScene& scene) { scene.Add(2); },
                [](CNotebookScene& scene) { scene.m_Notebook->SetPageIndex(1); },
                [](CNotebookScene& scene) { scene.Replace(1, 3); },
                [](CNotebookScene& scene) { scene.m_Notebook->SetPageIndex(2); },
                [](CNotebookScene& scene) { scene.m_Host->Resize(80, 50); },
                [](CNotebookScene& scene) { scene.Remove(2); },
                [](CNotebookScene& scene) { scene.Remove(0); },
                [](CNotebookScene& scene) { scene.Remove(0); },
                [](CNotebookScene& scene) { scene.Add(4); }};
    }
    void Add(std::size_t page)
    {
        if (IsAlive(m_Pages[page]) && !m_Pages[page]->GetParent())
            m_Pages[page]->ReParent(m_Notebook, true);
    }
    void Remove(int index)
    {
        CVisualElement* const removed = m_Notebook->RemovePage(index);
        EXPECT_TRUE(!removed || IsAlive(removed));
    }
    void Replace(int index, std::size_t page)
    {
        if (!IsAlive(m_Pages[page]))
            return;
        CVisualElement* const old = m_Notebook->ReplacePage(index, m_Pages[page]);
        EXPECT_TRUE(!old || IsAlive(old));
    }

    void DeleteParent() { Delete(m_Parent); }
    void DeletePage(std::size_t page)
    {
        if (IsAlive(m_Pages[page]))
            delete m_Pages[page];
    }
    void DeletePages()
    {
        for (std::size_t i = 0; i < m_Pages.size(); ++i)
            DeletePage(i);
    }
    void DeleteNew() { DeletePage(3); }
    void DeleteOld() { DeletePage(1); }
    void MovePages()
    {
        for (CTellingPage* const page : m_Pages)
            if (IsAlive(page) && page->GetParent() && IsThere(m_Notebook))
                page->ReParent(m_Host->HasControl() ? m_Host->Root() : nullptr, true);
    }
    void RemoveFirst()
    {
        if (IsThere(m_Notebook))
            Remove(0);
    }
    void Turn()
    {
        if (m_Depth++ < 3 && IsThere(m_Notebook))
            m_Notebook->SetPageIndex(m_Notebook->GetPageIndex() == 0 ? 1 : 0);
    }
    /// No more than one page shows.
    void Look()
    {
        if (!IsThere(m_Notebook))
            return;
        int shown = 0;
        for (int i = 0; i < m_Notebook->GetChildren()->GetCount(); ++i)
            shown += m_Notebook->GetPage(i)->IsVisible();
        EXPECT_LE(shown, 1);
    }

    STold m_Told;
    CVisualElement* const m_Parent = new CVisualElement(m_Host->Root(), {0, 0}, alClient);
    CNotebook* const m_Notebook = new CNotebook(m_Parent, {0, 0}, alClient);
    std::vector<CTellingPage*> m_Pages;

private:
    std::set<CVisualElement*> m_Free;  // that live
    std::vector<std::unique_ptr<CSlot<CVisualElement*>>> m_Watches;
    int m_Depth = 0;
};

// Sliders ---------------------------------------------------------------------------------------------------------------------

/// Tells of each operation, before it is done.
class CTellingDrawing : public CDefSliderDrawingModel
{
public:
    explicit CTellingDrawing(STold& told) : m_Told(told) {}

    void GetAttr(int, font&, _color&, _color&, int&) const override { m_Told.first(); }
    void GetContentRect(int point, int state, rectangle<double>& rect, ILayout* layout) const override
    {
        CDefSliderDrawingModel::GetContentRect(point, state, rect, layout);
        m_Told.second();
    }
    void OnDrawPointCaption(IPainter*, rectangle<double> const&, int, int, std::string const&, ILayout*) const override
    {
        m_Told.third();
    }
    size<int> GetPointerSize(ILayout* layout) const override
    {
        size<int> const extent = CDefSliderDrawingModel::GetPointerSize(layout);
        m_Told.fourth();
        return extent;
    }
    void OnDrawPointer(IPainter*, rectangle<double> const&, int, ILayout*) const override { m_Told.fifth(); }
    rectangle<int> GetSlotRect(rectangle<double> const& bounds, ILayout* layout) const override
    {
        rectangle<int> const track = s_DefSliderDrawingModel.GetSlotRect(bounds, layout);
        m_Told.sixth();
        return track;
    }
    void OnDrawSlot(IPainter*, rectangle<double> const&, int, ILayout*) const override { m_Told.seventh(); }

private:
    STold& m_Told;
};

/// Three points that tell whenever something is asked for.
class CTellingPoints : public ISliderModel
{
public:
    explicit CTellingPoints(STold& told) : m_Told(told) {}

    int m_Count = 3;

    double GetMinValue() const override { return Tell(m_Told.first, 0.0); }
    double GetMaxValue() const override { return Tell(m_Told.second, 2.0); }
    int GetPointCount() const override { return Tell(m_Told.third, m_Count); }
    double GetPointValue(int index) const override { return Tell(m_Told.fourth, static_cast<double>(index)); }
    std::string GetPointCaption(int) const override { return Tell(m_Told.fifth, std::string("abc")); }

private:
    template <class T> static T Tell(signal_t<>& signal, T answer)
    {
        signal();
        return answer;
    }

    STold& m_Told;
};

class CSliderScene : public CDeedPlay<CSlider>
{
public:
    CSliderScene() : CDeedPlay<CSlider>({100, 60})
    {
        m_Slider->SetDirection(CSlider::SliderHorizontal);
        m_Slider->SetDrawingModel(&m_Drawing);
        m_Slider->SetModel(m_Model.get());
        WatchWidget(m_Slider, {m_Parent});
        On<CSlider*, double>("tracking", m_Slider->m_PosTracking);
        On<CSlider*, double>("changed", m_Slider->m_PosChanged);
        On<>("attr", m_Look.first);
        On<>("content", m_Look.second);
        On<>("draw caption", m_Look.third);
        On<>("pointer size", m_Look.fourth);
        On<>("draw pointer", m_Look.fifth);
        On<>("track", m_Look.sixth);
        On<>("draw track", m_Look.seventh);
        On<>("min", m_Told.first);
        On<>("max", m_Told.second);
        On<>("count", m_Told.third);
        On<>("value", m_Told.fourth);
        On<>("caption", m_Told.fifth);
        m_Host->Focus();
    }
    ~CSliderScene() { End(); }

    // The track goes from 12 to 87: points at 12, 49 and 87.
    static std::vector<Step> Steps()
    {
        return {Paint,          PressAt(49, 40),
                Release,        Paint,
                PressAt(49, 5), MoveTo(88, 5),
                Paint,          MoveTo(2, 5),
                Release,        [](CTestHost& host) { host.Keyboard().Press(vkRight); },
                Paint};
    }
    void Run(int misdeedAt = -1, std::function<void(CSliderScene&)> const& misdeed = {})
    {
        auto steps = Steps();
        steps.push_back([this](CTestHost&) {
            if (m_Model)
                m_Model->m_SigChanged(m_Model.get());
        });
        Play(steps, misdeedAt, [&] { misdeed(*this); });
    }
    void DeleteParent() { Delete(m_Parent); }
    void DeleteModel() { m_Model.reset(); }
    void DropModel()
    {
        if (IsThere(m_Slider))
            m_Slider->SetModel(nullptr);
    }
    void DropDrawing()
    {
        if (IsThere(m_Slider))
            m_Slider->SetDrawingModel(nullptr);
    }
    void Shrink()
    {
        if (m_Model && m_Model->m_Count == 3)
        {
            m_Model->m_Count = 1;
            m_Model->m_SigChanged(m_Model.get());
        }
    }
    void Turn()
    {
        if (IsThere(m_Slider))
            m_Slider->SetDirection(CSlider::SliderVertical);
    }
    void Set()
    {
        if (m_Depth++ < 3 && IsThere(m_Slider))
            m_Slider->SetSliderPos(m_Slider->GetSliderPos() == 0 ? 1 : 0);
    }

    STold m_Told;
    STold m_Look;
    CTellingDrawing m_Drawing{m_Look};
    std::unique_ptr<CTellingPoints> m_Model = std::make_unique<CTellingPoints>(m_Told);
    CVisualElement* const m_Parent = new CVisualElement(m_Host->Root(), {0, 0}, alClient);
    CSlider* const m_Slider = new CSlider(m_Parent, {0, 50}, alTop);

private:
    int m_Depth = 0;
};

void Cancel()
{
    throw vexel::cancel_processing();
}

class TabsDeletion : public CDeedTest<CTabsScene>
{};
class NotebookDeletion : public CDeedTest<CNotebookScene>
{};
class SliderDeletion : public CDeedTest<CSliderScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, TabsDeletion,
                         testing::ValuesIn(WithCommon<CTabsScene>({{"DeleteModel", &CTabsScene::DeleteModel},
                                                                   {"DropModel", &CTabsScene::DropModel},
                                                                   {"Shrink", &CTabsScene::Shrink},
                                                                   {"Go", &CTabsScene::Go},
                                                                   {"Scroll", &CTabsScene::Scroll},
                                                                   {"Squeeze", &CTabsScene::Squeeze},
                                                                   {"Cancel", [](CTabsScene&) { Cancel(); }}})),
                         NameOfDeed());
INSTANTIATE_TEST_SUITE_P(ByDeed, NotebookDeletion,
                         testing::ValuesIn(WithCommon<CNotebookScene>({{"DeletePages", &CNotebookScene::DeletePages},
                                                                       {"DeleteNew", &CNotebookScene::DeleteNew},
                                                                       {"DeleteOld", &CNotebookScene::DeleteOld},
                                                                       {"MovePages", &CNotebookScene::MovePages},
                                                                       {"RemoveFirst", &CNotebookScene::RemoveFirst},
                                                                       {"Turn", &CNotebookScene::Turn}})),
                         NameOfDeed());
INSTANTIATE_TEST_SUITE_P(ByDeed, SliderDeletion,
                         testing::ValuesIn(WithCommon<CSliderScene>({{"DeleteModel", &CSliderScene::DeleteModel},
                                                                     {"DropModel", &CSliderScene::DropModel},
                                                                     {"DropDrawing", &CSliderScene::DropDrawing},
                                                                     {"Shrink", &CSliderScene::Shrink},
                                                                     {"Turn", &CSliderScene::Turn},
                                                                     {"Set", &CSliderScene::Set},
                                                                     {"Cancel", [](CSliderScene&) { Cancel(); }}})),
                         NameOfDeed());

}  // namespace

TEST_P(TabsDeletion, InASlotOrASubclassIsSurvived)
{
    static char const* const signals[] = {"changing", "changed",     "draw tab", "hit",    "first hit",
                                          "width",    "coordinates", "count",    "caption"};
    std::set<std::string> const painted{"draw tab", "width", "coordinates", "count", "caption"};
    DoInEachSlot(signals, [&](std::string const& signal) {
        return Is("Cancel") && painted.contains(signal);  // nobody catches what is thrown in a paint
    });
}

TEST_P(TabsDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CTabsScene& scene) {
        if (scene.IsThere(scene.m_Tabs) && !scene.m_Model)
        {
            EXPECT_EQ(scene.m_Tabs->GetModel(), nullptr);
        }
    });
}

TEST_P(NotebookDeletion, InASlotOrAPageIsSurvived)
{
    static char const* const signals[] = {"size", "hide first", "show second", "show third", "show new",
                                          "draw", "align",      "place",       "visible",    "parent"};
    DoInEachSlot(
        signals, [](std::string const&) { return false; }, [](CNotebookScene& scene) { scene.Look(); });
}

TEST_P(NotebookDeletion, BetweenTwoStepsIsSurvived)
{
    DoBeforeEachStep([](CNotebookScene& scene) { scene.Look(); });
}

TEST_P(SliderDeletion, InASlotOrAModelIsSurvived)
{
    static char const* const signals[] = {"tracking",     "changed",      "attr",  "content",    "draw caption",
                                          "pointer size", "draw pointer", "track", "draw track", "min",
                                          "max",          "count",        "value", "caption"};
    std::set<std::string> const painted{"attr",         "content", "draw caption", "pointer size",
                                        "draw pointer", "track",   "draw track",   "min",
                                        "max",          "count",   "value",        "caption"};
    DoInEachSlot(signals, [&](std::string const& signal) { return Is("Cancel") && painted.contains(signal); });
}

TEST_P(SliderDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CSliderScene& scene) {
        if (scene.IsThere(scene.m_Slider) && !scene.m_Model)
        {
            EXPECT_EQ(scene.m_Slider->GetModel(), &s_DefSliderModel);
        }
    });
}
