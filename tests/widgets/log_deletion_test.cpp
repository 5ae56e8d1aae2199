// Event logs and pages of categories survive what a slot does to them, to their models and to their control.

#include "tests/support/deed_play.h"
#include "tests/widgets/config_tree.h"
#include "tests/widgets/log_lines.h"
#include "vexel/controls/check_box.h"
#include "vexel/core/base_control.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/configuration_viewer.h"
#include "vexel/widgets/event_log.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A log in a container ------------------------------------------------------------------------------------------------------

class CLogScene : public CDeedPlay<CEventLog>
{
public:
    CLogScene() : CDeedPlay<CEventLog>({200, 60})
    {
        m_Container->SetScrolled(m_Log);
        m_Log->SetAutoScroll(true);
        WatchWidget(m_Log, {m_Container, &m_Log->GetTitledList(), &m_Log->GetList(), m_Box});
        On<CVisualElement*>("size", m_Log->m_SigSize);
        On<CVisualElement*>("titled.size", m_Log->GetTitledList().m_SigSize);
        On<CVisualElement*>("list.size", m_Log->GetList().m_SigSize);
        On<CVisualElement*, bool>("titled.visible", m_Log->GetTitledList().m_SigVisible);
        On<CVisualElement*>("container.size", m_Container->m_SigSize);
        On<CList*, int>("clicked", m_Log->GetList().m_SigItemClicked);
        On<CVisualElement*>("box.destroy", m_Box->m_SigDestroy);
        On<>("changed", m_Lines->m_SigChanged);
        m_Host->Focus();
        m_Log->SetFocus(true);
    }
    ~CLogScene()
    {
        m_Scene = nullptr;
        End();
    }

    static std::vector<Step> Steps()
    {
        auto const paint = [](CTestHost& host) { host.Paint(); };
        auto const with = [](std::function<void(CLogScene&)> const& deed) {
            return [deed](CTestHost&) {
                if (m_Scene && m_Scene->IsThere(m_Scene->m_Log))
                    deed(*m_Scene);
            };
        };
        return {paint,
                with([](CLogScene& scene) { scene.m_Log->SetModel(scene.m_Lines.get()); }),
                paint,
                with([](CLogScene& scene) { scene.Grow("a line"); }),
                paint,
                with([](CLogScene& scene) { scene.Grow("one that is so wide that the log gets wider than its view"); }),
                paint,
                [](CTestHost& host) { host.Mouse().Click(25, 40); },
                [](CTestHost& host) { host.Keyboard().Press(vkHome, ksControl); },
                paint,
                [](CTestHost& host) { host.Mouse().Wheel(30, 30, -2); },
                paint,
                with([](CLogScene& scene) {
                    if (scene.IsThere(scene.m_Box))
                        scene.m_Log->MoveElementBack(scene.m_Box);
                }),
                paint,
                with([](CLogScene& scene) { scene.m_Log->SetInitialWidth(120, false); }),
                with([](CLogScene& scene) { scene.m_Log->Clear(); }),
                paint,
                with([](CLogScene& scene) { scene.m_Log->SetModel(scene.m_Lines.get()); }),
                paint};
    }
    void Run(int misdeedAt = -1, std::function<void(CLogScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }
    void Grow(std::string const& line)
    {
        if (m_Lines)
            m_Lines->Append(line);
    }
    void DeleteModel() { m_Lines.reset(); }
    void DropModel()
    {
        if (IsThere(m_Log))
            m_Log->SetModel(nullptr);
    }
    void Clear()
    {
        if (IsThere(m_Log))
            m_Log->Clear();
    }
    void AddLine()
    {
        if (m_Lines && m_Lines->GetItemCount() < 60)
            m_Lines->Append("by the way");
    }
    void TakeLines()
    {
        if (m_Lines)
            m_Lines->Shrink(1);
    }

    static inline CLogScene* m_Scene = nullptr;
    std::unique_ptr<CLogLines> m_Lines = std::make_unique<CLogLines>(10);
    CScrollContainer* const m_Container = new CScrollContainer(m_Host->Root(), {10, 10}, alClient);
    CEventLog* const m_Log = new CEventLog(nullptr, {50, 10}, alNone);
    CVisualElement* const m_Box = new CVisualElement(m_Log, {10, 20}, alTop);

private:
    bool const m_Set = (m_Scene = this) != nullptr;
};

std::vector<SMisdeed<CLogScene>> LogDeeds()
{
    return {{"DeleteLog", [](CLogScene& scene) { scene.DeleteWidget(); }},
            {"DeleteContainer", [](CLogScene& scene) { scene.Delete(scene.m_Container); }},
            {"DeleteControl", [](CLogScene& scene) { scene.DeleteControl(); }},
            {"Detach", [](CLogScene& scene) { scene.Detach(); }},
            {"Hide", [](CLogScene& scene) { scene.Hide(); }},
            {"Disable", [](CLogScene& scene) { scene.Disable(); }},
            {"DeleteModel", [](CLogScene& scene) { scene.DeleteModel(); }},
            {"DropModel", [](CLogScene& scene) { scene.DropModel(); }},
            {"Clear", [](CLogScene& scene) { scene.Clear(); }},
            {"AddLine", [](CLogScene& scene) { scene.AddLine(); }},
            {"TakeLines", [](CLogScene& scene) { scene.TakeLines(); }},
            {"DeleteBox", [](CLogScene& scene) {
                 if (scene.IsThere(scene.m_Log))
                     scene.Delete(scene.m_Box);
             }}};
}

class LogDeletion : public CDeedTest<CLogScene>
{
protected:
    void PlayAll()
    {
        // Clearing within the destruction of what is being cleared, or of the log, is nobody's doing.
        auto const leaveOut = [&](std::string const& signal) {
            bool const resizes = Is("AddLine") || Is("TakeLines");
            return (signal == "box.destroy" && (Is("Clear") || Is("DeleteBox"))) || (signal == "changed" && resizes);
        };
        char const* const signals[] = {"size",           "titled.size", "list.size",   "titled.visible",
                                       "container.size", "clicked",     "box.destroy", "changed"};
        DoInEachSlot(signals, leaveOut);
        DoBeforeEachStep([](CLogScene&) {});
    }
};

TEST_P(LogDeletion, InEachSlotAndBeforeEachStep)
{
    PlayAll();
}

class CAsyncScope
{
public:
    CAsyncScope() { CEventLog::UseAsyncAutoScroll(true); }
    ~CAsyncScope() { CEventLog::UseAsyncAutoScroll(false); }
};

TEST_P(LogDeletion, AlsoWhereItGoesToItsEndLater)
{
    CAsyncScope const async;
    PlayAll();
}

INSTANTIATE_TEST_SUITE_P(ByDeed, LogDeletion, testing::ValuesIn(LogDeeds()), NameOfDeed());

// A page of categories ------------------------------------------------------------------------------------------------------

class CPageScene : public CDeedPlay<CConfigurationViewer>
{
public:
    CPageScene() : CDeedPlay<CConfigurationViewer>({400, 60})
    {
        m_Viewer->SetModel(&m_Model);
        WatchWidget(m_Viewer, {});
        On<CTreeCategory*>("general.activated", m_General.m_Activated);
        On<CTreeCategory*>("general.deactivated", m_General.m_Deactivated);
        On<CTreeCategory*>("other.activated", m_Other.m_Activated);
        On<CTreeCategory*>("other.deactivated", m_Other.m_Deactivated);
        On<CVisualElement*>("name.size", m_Name.m_SigSize);
        On<CVisualElement*, bool>("name.visible", m_Name.m_SigVisible);
        On<CVisualElement*>("check.size", m_Check.m_SigSize);
        On<CCheckBox*>("check.changed", m_Check.m_CheckChanged);
        On<int, int>("current", m_Viewer->GetRowSelectionModel()->m_SigCurrentChanged);
        On<int, int, bool*>("resized", m_Viewer->GetRowViewModel()->m_SigSizeChanged);
        On<>("rows", m_Viewer->GetRowViewModel()->m_SigChanged);
    }
    ~CPageScene()
    {
        m_Scene = nullptr;
        End();
    }

    static std::vector<Step> Steps()
    {
        auto const paint = [](CTestHost& host) { host.Paint(); };
        auto const with = [](std::function<void(CPageScene&)> const& deed) {
            return [deed](CTestHost&) {
                if (m_Scene && m_Scene->IsThere(m_Scene->m_Viewer))
                    deed(*m_Scene);
            };
        };
        return {paint,
                [](CTestHost& host) { host.Mouse().Click(20, 10); },
                paint,
                [](CTestHost& host) { host.Mouse().Click(190, 52); },
                paint,
                with([](CPageScene& scene) { scene.m_Viewer->GetRowViewModel()->SetOffset(20); }),
                paint,
                with([](CPageScene& scene) { scene.m_Viewer->RefreshActiveCategory(); }),
                paint,
                with([](CPageScene& scene) { scene.m_Viewer->GetRowSelectionModel()->SetCurrent(1); }),
                paint,
                with([](CPageScene& scene) { scene.m_Viewer->GetRowSelectionModel()->SetCurrent(0); }),
                with([](CPageScene& scene) { scene.m_Viewer->SetModel(&scene.m_Model); }),
                paint,
                with([](CPageScene& scene) { scene.m_Viewer->GetRowSelectionModel()->SetCurrent(2); }),
                [](CTestHost& host) { host.Resize(400, 90); },
                paint};
    }
    void Run(int misdeedAt = -1, std::function<void(CPageScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }
    // It must be gone from wherever it is shown first, as an editor's owner knows.
    void DeleteEditors()
    {
        for (auto& item : m_General.m_Items)
            item->m_Editor.reset();
    }
    void SetCurrent(int row)
    {
        if (IsThere(m_Viewer))
            m_Viewer->GetRowSelectionModel()->SetCurrent(row);
    }
    void Refresh()
    {
        if (!IsThere(m_Viewer) || m_Refreshes++ > 3)
            return;
        m_Viewer->RefreshActiveCategory();
    }
    void DropModel()
    {
        if (IsThere(m_Viewer))
            m_Viewer->SetModel(nullptr);
    }

    static inline CPageScene* m_Scene = nullptr;
    CTreeModel m_Model;
    CTreeCategory& m_General = m_Model.AddCategory("General", "of all");
    CVisualElement& m_Name = m_General.AddEditor("Name", 60);
    CCheckBox& m_Check = m_General.AddEditor<CCheckBox>("Check", 60);
    CTreeCategory& m_Other = m_Model.AddCategory("Other", "two\nlines");
    CConfigurationViewer* const m_Viewer = new CConfigurationViewer(m_Host->Root(), {10, 10}, alClient);
    int m_Refreshes = 0;

private:
    bool const m_Set = (m_Scene = this) != nullptr;
};

std::vector<SMisdeed<CPageScene>> PageDeeds()
{
    return {{"DeleteViewer", [](CPageScene& scene) { scene.DeleteWidget(); }},
            {"DeleteControl", [](CPageScene& scene) { scene.DeleteControl(); }},
            {"Detach", [](CPageScene& scene) { scene.Detach(); }},
            {"Hide", [](CPageScene& scene) { scene.Hide(); }},
            {"Disable", [](CPageScene& scene) { scene.Disable(); }},
            {"DropModel", [](CPageScene& scene) { scene.DropModel(); }},
            {"CloseAll", [](CPageScene& scene) { scene.SetCurrent(-1); }},
            {"OpenFirst", [](CPageScene& scene) { scene.SetCurrent(0); }},
            {"OpenLast", [](CPageScene& scene) { scene.SetCurrent(1); }},
            {"Refresh", [](CPageScene& scene) { scene.Refresh(); }},
            {"DeleteEditors", [](CPageScene& scene) { scene.DeleteEditors(); }}};
}

class PageDeletion : public CDeedTest<CPageScene>
{};

TEST_P(PageDeletion, InEachSlotAndBeforeEachStep)
{
    // Setting a model tells of new rows.
    auto const leaveOut = [&](std::string const& signal) { return signal == "rows" && Is("DropModel"); };
    char const* const signals[] = {
        "general.activated", "general.deactivated", "other.activated", "other.deactivated", "name.size", "name.visible",
        "check.size",        "check.changed",       "current",         "resized",           "rows"};
    DoInEachSlot(signals, leaveOut);
    DoBeforeEachStep([](CPageScene&) {});
}

INSTANTIATE_TEST_SUITE_P(ByDeed, PageDeletion, testing::ValuesIn(PageDeeds()), NameOfDeed());

}  // namespace
