// Lists and grids painted bit by bit look as if painted at once: played at random, by mouse, keys, bars and code.

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "tests/views/game_panel.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/scroll/scroll_container.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using namespace view_game;

namespace
{

class CViewGame
{
public:
    CViewGame(CTestHost& host, CTestRandom& random) : m_Host(host), m_Random(random)
    {
        m_Base = new CLeaf(host.Root(), {0, 0}, alClient, 3);
        for (int i = random.Int(0, 2); i > 0; --i)
            AddLeaf(m_Base);
        if (random.Chance(40))
            AddPanel(m_Base, {random.Int(75, 90), 10}, random.Bool() ? alLeft : alRight);
        if (random.Chance(25))
        {
            m_Container = new CScrollContainer(m_Base, {10, 10}, alClient);
            m_Scrolled = new CLeaf(nullptr, {random.Int(265, 330), random.Int(205, 270)}, alNone, 5);
            m_Container->SetScrolled(m_Scrolled);
            AddPanel(m_Scrolled, {10, 10}, alClient);
        }
        else
            AddPanel(m_Base, {10, 10}, alClient);
        if (m_Panels.size() == 2 && random.Chance(20))
        {
            m_Shared = std::make_unique<CDefaultSelectionModel>();
            for (auto const& panel : m_Panels)
                panel->UseSelection(m_Shared.get());
        }
        Paint();
        if (random.Bool())
            m_Panels[0]->m_Viewer->SetFocus(true);
    }

    void Step()
    {
        m_Panel = m_Random.Pick(m_Panels).get();
        m_Axis = m_Random.Chance(70) || !m_Panel->Columns().view ? m_Panel->Rows() : m_Panel->Columns();
        switch (m_Random.Int(0, 17))
        {
        case 0:
        case 1:
            Click();
            break;
        case 2:
            Drag();
            break;
        case 3:
        case 4:
            Key();
            break;
        case 5:
            Wheel();
            break;
        case 6:
            MoveBar();
            break;
        case 7:
            MoveByCode();
            break;
        case 8:
            ChangeCount();
            break;
        case 9:
            MoveItem();
            break;
        case 10:
            ChangeSize();
            break;
        case 11:
            Select();
            break;
        case 12:
            ChangeLook();
            break;
        case 13:
            ChangeLayout();
            break;
        case 14:
            Repaint();
            break;
        case 15:
            ChangeContent();
            break;
        case 16:
            DragHeader();
            break;
        default:
            if (m_Random.Chance(30))
            {
                int const width = m_Random.Int(200, 260), height = m_Random.Int(130, 200);
                m_Host.Resize(width, height);
                Note("resize to " + std::to_string(width) + " x " + std::to_string(height));
            }
            break;
        }
        ProcessPending();
    }
    int CountSkipped() const
    {
        int count = 0;
        for (auto const& panel : m_Panels)
            count += panel->GetSkipped();
        return count;
    }
    std::string History() const
    {
        std::string text = m_Log.Text();
        for (auto const& panel : m_Panels)
            text += Describe(*panel);
        return text + DescribeTree(m_Base);
    }
    void Paint()
    {
        for (auto const& panel : m_Panels)
            if (!panel->m_Viewer->IsVisible())
                m_Base->Update(utElement);  // a box draws nothing itself
        m_Base->ForceRearrange();
        for (int i = 0; i < 10 && m_Scrolled && IsTouching(m_Scrolled); ++i)
        {
            for (IScrollModel* const model : {m_Container->GetWrappedHorzScroll(), m_Container->GetWrappedVertScroll()})
                model->SetStart(model->GetStart() > 0 ? model->GetStart() - 1 : 1);
            m_Base->ForceRearrange();
        }
        m_Host.Paint();
        Note("paint");
    }

private:
    // What shows by a single line of pixels is not cut to its own place.
    bool IsTouching(CVisualElement* element) const
    {
        rectangle<int> rect = element->GetBounds();
        element->ElementToControl(&rect);
        rectangle<int> view = m_Scrolled->GetParent()->GetBounds();
        m_Scrolled->GetParent()->ElementToControl(&view);
        if (element->IsVisible() && !rect.IsEmpty() &&
            (rect.left == view.right || rect.right == view.left || rect.top == view.bottom || rect.bottom == view.top))
            return true;
        for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
            if (IsTouching(element->GetChildren()->GetItem(i)))
                return true;
        return false;
    }
    static std::string Describe(CPanel& panel)
    {
        rectangle<int> rect = panel.m_Viewer->GetBounds();
        panel.m_Viewer->ElementToControl(&rect);
        std::string text = panel.m_What + " at " + test::Describe(rect);
        for (CPanel::SAxis const& axis : {panel.Rows(), panel.Columns()})
            if (axis.view)
                text += ", " + test::TypeName(typeid(*axis.view)) + " " + std::to_string(axis.view->GetCount()) +
                        " of " + std::to_string(axis.view->GetDefaultItemSize()) + " in " +
                        std::to_string(axis.view->GetViewSize()) + " from " + std::to_string(StartOf(axis.view)) +
                        (axis.view->IsLastItemStretched() ? ", stretched" : "") + ", current " +
                        std::to_string(axis.selection->GetCurrent());
        return text + "\n";
    }
    static int StartOf(IBaseItemViewModel* model)
    {
        if (auto* const discrete = dynamic_cast<IDiscreteItemViewModel*>(model))
            return discrete->GetStartItem();
        return dynamic_cast<IContinuousItemViewModel*>(model)->GetOffset();
    }
    void AddLeaf(CVisualElement* parent)
    {
        m_Leaves.push_back(new CLeaf(parent, {m_Random.Int(3, 12), m_Random.Int(3, 12)},
                                     static_cast<Alignment>(m_Random.Int(alLeft, alBottom)), m_Random.Int(0, 17)));
    }
    void AddPanel(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    {
        switch (m_Random.Int(0, 3))
        {
        case 0:
        case 1:
            m_Panels.push_back(
                std::make_unique<CRowsPanel<IDiscreteItemViewModel>>(m_Random, parent, extent, alignment));
            break;
        case 2:
            m_Panels.push_back(
                std::make_unique<CRowsPanel<IContinuousItemViewModel>>(m_Random, parent, extent, alignment));
            break;
        default:
            m_Panels.push_back(std::make_unique<CGridPanel>(m_Random, parent, extent, alignment));
            break;
        }
        CPanel& panel = *m_Panels.back();
        if (m_Random.Chance(15))
        {
            panel.m_OnTop = new CLeaf(panel.m_Viewer, {10, 10}, alNone, m_Random.Int(0, 17));
            PlaceChild(panel);
            panel.m_What += " with a child";
        }
    }
    // Within the viewer however small that becomes.
    void PlaceChild(CPanel& panel)
    {
        int const left = m_Random.Int(0, 8), top = m_Random.Int(0, 20);
        panel.m_OnTop->SetPos({left, top, left + m_Random.Int(5, 15), top + m_Random.Int(5, 20)}, false);
    }
    void ProcessPending()
    {
        if (m_Random.Chance(20))
            m_Host.RunPending();
    }
    int RandomItem() { return m_Random.Int(0, std::max(m_Axis.view->GetCount() - 1, 0)); }
    point<int> PointInView()
    {
        rectangle<int> const bounds = m_Panel->m_Viewer->GetBounds();
        return {m_Random.Int(0, std::max(bounds.right, 0)), m_Random.Int(0, std::max(bounds.bottom, 0))};
    }
    int RandomKeys()
    {
        int const keys[] = {0, 0, ksShift, ksControl, ksShift | ksControl};
        return m_Random.Pick(keys);
    }

    // By the user ---------------------------------------------------------------------------------------------------------
    void Click()
    {
        Paint();  // or the mouse would meet a layout of old
        int const keys = RandomKeys();
        CHoldKeys const hold(m_Host, keys);
        point<int> const at = PointInView();
        MouseButton const button = m_Random.Chance(85) ? mbLeft : mbRight;
        m_Host.Mouse().Click(*m_Panel->m_Viewer, at.x, at.y, button);
        Note("click " + test::Describe(at) + " keys " + std::to_string(keys) + " button " + std::to_string(button));
    }
    void Drag()
    {
        Paint();
        point<int> const at = PointInView();
        point<int> const to{m_Random.Int(-20, 120), m_Random.Int(-60, 200)};
        m_Host.Mouse().Press(*m_Panel->m_Viewer, at.x, at.y);
        for (int i = 1; i <= 3; ++i)
        {
            m_Host.Mouse().Move(*m_Panel->m_Viewer, at.x + (to.x - at.x) * i / 3, at.y + (to.y - at.y) * i / 3);
            if (m_Random.Chance(40))
                Paint();
        }
        int const ticks = m_Random.Int(0, 5);
        for (int i = 0; i < ticks; ++i)
        {
            m_Host.Clock().Advance(100);
            if (m_Random.Chance(30))
                Paint();
        }
        m_Host.Mouse().Release();
        Note("drag " + test::Describe(at) + " to " + test::Describe(to) + ", ticks " + std::to_string(ticks));
    }
    void Key()
    {
        if (m_Random.Chance(60))
            m_Panel->m_Viewer->SetFocus(true);
        int const all[] = {vkSpace, vkPageUp, vkPageDown, vkEnd,  vkHome, vkLeft,
                           vkUp,    vkUp,     vkRight,    vkDown, vkDown, 'A'};
        int const keys = RandomKeys();
        int const key = m_Random.Pick(all);
        for (int i = m_Random.Int(1, 5); i > 0; --i)
            m_Host.Keyboard().Down(key, keys);
        m_Host.Keyboard().Up(key, keys);
        Note("key " + std::to_string(key) + " keys " + std::to_string(keys));
    }
    void Wheel()
    {
        int const notches = m_Random.Int(-5, 5);
        m_Host.Mouse().Wheel(*m_Panel->m_Viewer, 5, 5, notches);
        Note("wheel " + std::to_string(notches));
    }
    void MoveBar()
    {
        bool const vertical = m_Random.Bool();
        auto* const bar = dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(vertical ? m_Panel->m_Box->GetVertBar()
                                                                                      : m_Panel->m_Box->GetHorzBar());
        switch (m_Random.Int(0, 2))
        {
        case 0:
            bar->StepLine(m_Random.Int(-3, 3));
            break;
        case 1:
            bar->StepPage(m_Random.Int(-1, 1));
            break;
        default:
            bar->DragThumb(m_Random.Int(0, 250));
            break;
        }
        Note(vertical ? "vertical bar" : "horizontal bar");
    }
    void DragHeader()
    {
        Paint();
        int const x = m_Random.Int(0, 100), y = m_Random.Int(0, 100);
        rectangle<int> rect = m_Panel->m_Box->GetBounds();
        m_Panel->m_Box->ElementToControl(&rect);
        bool const top = m_Random.Bool();
        point<int> const from = top ? point<int>{rect.left + x, rect.top + 5} : point<int>{rect.left + 5, rect.top + y};
        int const delta = m_Random.Int(-15, 25);
        m_Host.Mouse().Drag(from.x, from.y, from.x + (top ? delta : 0), from.y + (top ? 0 : delta), 3);
        if (m_Random.Chance(30))
            Paint();
        m_Host.Mouse().Release();
        Note("drag in the box at " + test::Describe(from) + " by " + std::to_string(delta));
    }

    // By code ---------------------------------------------------------------------------------------------------------------
    void MoveByCode()
    {
        if (m_Container && m_Random.Chance(50))
        {
            m_Random.Bool() ? m_Container->GetWrappedVertScroll()->SetStart(m_Random.Int(0, 120))
                            : m_Container->GetWrappedHorzScroll()->SetStart(m_Random.Int(0, 120));
            Note("scroll the container");
            return;
        }
        int const item = RandomItem();
        switch (m_Random.Int(0, 3))
        {
        case 0:
            m_Panel->ItemToView(m_Random, item);
            Note("to view " + std::to_string(item));
            break;
        case 1:
        {
            IScrollModel* const scroll =
                m_Random.Bool() ? m_Panel->m_Viewer->GetVertScroll() : m_Panel->m_Viewer->GetHorzScroll();
            if (scroll)
                scroll->SetStart(m_Random.Int(0, 40));
            Note("scroll the model");
            break;
        }
        default:
            if (auto* const discrete = dynamic_cast<IDiscreteItemViewModel*>(m_Axis.view))
                discrete->SetStartItem(item);
            else
                dynamic_cast<IContinuousItemViewModel*>(m_Axis.view)->SetOffset(m_Random.Int(0, 200));
            Note("start " + std::to_string(item));
            break;
        }
    }
    void Translate(IIndexTranslator& translator)
    {
        m_Axis.view->UpdateModelState(&translator);
        m_Axis.selection->UpdateModelState(&translator);
    }
    void ChangeCount()
    {
        int const count = m_Axis.view->GetCount();
        m_Axis.labels->SetCount(count);
        if (m_Random.Chance(20) || count > 60)
        {
            int const now = m_Random.Int(0, 30);
            m_Axis.labels->SetCount(now);
            m_Axis.view->SetCount(now);
            Note("count " + std::to_string(now));
            return;
        }
        bool const insert = count == 0 || m_Random.Bool();
        int const at = m_Random.Int(-1, insert ? count - 1 : count - 2);
        int const number = insert ? m_Random.Int(1, 4) : m_Random.Int(1, std::min(4, count - 1 - at));
        if (insert)
            m_Axis.labels->Insert(at + 1, number);
        else
            m_Axis.labels->Remove(at + 1, number);
        CAddRemoveTranslator translator(at, insert ? number : -number);
        bool const before = m_Random.Bool();
        if (before)
            m_Axis.view->SetCount(insert ? count + number : count - number);
        Translate(translator);
        if (!before)
            m_Axis.view->SetCount(insert ? count + number : count - number);
        Note((insert ? "insert " : "remove ") + std::to_string(number) + " behind " + std::to_string(at));
    }
    void MoveItem()
    {
        if (m_Axis.view->GetCount() < 2)
            return;
        m_Axis.labels->SetCount(m_Axis.view->GetCount());
        int const from = RandomItem(), to = RandomItem();
        m_Axis.labels->Move(from, to);
        CMoveTranslator translator(from, to);
        Translate(translator);
        Note("move " + std::to_string(from) + " to " + std::to_string(to));
    }
    void ChangeSize()
    {
        int const item = RandomItem(), extent = m_Random.Int(0, 30);
        switch (m_Random.Int(0, 5))
        {
        case 0:
            m_Axis.view->SetDefaultItemSize(std::max(extent, 1));
            Note("default size " + std::to_string(extent));
            break;
        case 1:
            m_Axis.view->SetStretchLastItem(!m_Axis.view->IsLastItemStretched());
            Note("stretch");
            break;
        default:
            m_Axis.view->SetItemSize(item, extent);
            Note("item " + std::to_string(item) + " size " + std::to_string(extent));
            break;
        }
    }
    void Select()
    {
        ISelectionModel& model = *m_Axis.selection;
        int const a = RandomItem(), b = RandomItem();
        switch (m_Random.Int(0, 5))
        {
        case 0:
            model.SetCurrent(m_Random.Int(-1, RandomItem()));
            break;
        case 1:
            if (model.IsItemSelected(a) == m_Random.Bool())
                model.SelectItem(a, !model.IsItemSelected(a));
            break;
        case 2:
            model.ClearSelection();
            break;
        case 3:
            model.ClearSelection();
            model.SetSelectionRange(a, b);
            break;
        case 4:
            m_Panel->SetSelectionType(static_cast<CEventHandlerBase::SelectionType>(m_Random.Int(0, 2)));
            break;
        default:
            m_Axis.handler->SetCurrentItem(a);
            break;
        }
        Note("select " + std::to_string(a) + " " + std::to_string(b));
    }
    void ChangeLook()
    {
        switch (m_Random.Int(0, 7))
        {
        case 0:
            m_Panel->m_Viewer->SetEnabled(!m_Panel->m_Viewer->IsEnabled());
            Note("enable viewer");
            break;
        case 1:
            m_Panel->m_Box->SetEnabled(!m_Panel->m_Box->IsEnabled());
            Note("enable box");
            break;
        case 2:
            m_Panel->m_Viewer->SetVisible(!m_Panel->m_Viewer->IsVisible());
            Note("show viewer");
            break;
        case 3:
            m_Panel->m_Box->SetVisible(!m_Panel->m_Box->IsVisible());
            Note("show box");
            break;
        case 4:
        {
            font font;
            font.size = m_Random.Int(4, 12);
            m_Panel->m_Viewer->SetFont(font);
            Note("font " + std::to_string(font.size));
            break;
        }
        case 5:
            m_Panel->m_Viewer->SetBkColor(color_table[m_Random.Int(9, 27)]);
            Note("colour");
            break;
        case 6:
            m_Random.Bool() ? m_Host.Focus() : m_Host.Unfocus();
            Note("native focus");
            break;
        default:
            m_Panel->m_Viewer->SetFocus(true);
            Note("focus");
            break;
        }
    }
    void ChangeLayout()
    {
        if (m_Scrolled && m_Random.Chance(40))
        {
            m_Scrolled->SetSize({m_Random.Int(265, 330), m_Random.Int(205, 270)}, false);
            Note("size of what is scrolled");
            return;
        }
        if (m_Panel->m_OnTop && m_Random.Chance(50))
        {
            PlaceChild(*m_Panel);
            m_Panel->m_Viewer->Invalidate();
            m_Panel->m_Viewer->GetParent()->Update(utElement);
            Note("move the child");
            return;
        }
        if (m_Leaves.empty())
            return;
        CVisualElement* const leaf = m_Random.Pick(m_Leaves);
        switch (m_Random.Int(0, 2))
        {
        case 0:
            leaf->SetVisible(!leaf->IsVisible());
            break;
        case 1:
            leaf->SetAlignment(static_cast<Alignment>(m_Random.Int(alLeft, alBottom)));
            break;
        default:
            leaf->SetSize({m_Random.Int(3, 12), m_Random.Int(3, 12)}, false);
            break;
        }
        Note("leaf");
    }
    void Repaint()
    {
        switch (m_Random.Int(0, 3))
        {
        case 0:
            m_Base->Update(utElement);
            Note("update base");
            break;
        case 1:
            m_Panel->m_Box->Update(utElement);
            Note("update box");
            break;
        case 2:
            m_Panel->m_Viewer->Update(utElement);
            Note("update viewer");
            break;
        default:
            (m_Panel->m_OnTop ? m_Panel->m_OnTop : m_Panel->m_Viewer)->Update(utElement);
            Note("update child");
            break;
        }
    }
    void ChangeContent()
    {
        if (m_Random.Chance(25))
        {
            m_Panel->ChangeModels(m_Random);
            Note("models");
            return;
        }
        if (m_Axis.view->GetCount() == 0)
            return;
        m_Axis.labels->SetCount(m_Axis.view->GetCount());
        int const item = RandomItem();
        m_Axis.labels->Change(item);
        m_Axis.view->AddDirtyItems(item, item);
        m_Random.Bool() ? m_Axis.view->m_SigChanged() : m_Panel->m_Viewer->Update(utElement);
        Note("data of " + std::to_string(item));
    }
    void Note(std::string const& what)
    {
        std::string step = what + (m_Panel ? " (" + Describe(*m_Panel).substr(0, 200) : "");
        if (step.back() == '\n')
            step.back() = ')';
        m_Log.Note(step);
    }

    CTestHost& m_Host;
    CTestRandom& m_Random;
    CVisualElement* m_Base = nullptr;
    CScrollContainer* m_Container = nullptr;
    CVisualElement* m_Scrolled = nullptr;
    std::vector<CVisualElement*> m_Leaves;
    std::unique_ptr<CDefaultSelectionModel> m_Shared;
    std::vector<std::unique_ptr<CPanel>> m_Panels;
    CPanel* m_Panel = nullptr;
    CPanel::SAxis m_Axis;
    CGameLog m_Log;
};

class IncrementalViews : public testing::TestWithParam<double>
{};

TEST_P(IncrementalViews, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int skipped = 0;
    for (int game = 0; game < 60; ++game)
    {
        CTestHost host(random.Int(200, 260), random.Int(130, 200), GetParam());
        host.Focus();
        CViewGame views(host, random);
        for (int round = 0; round < 40; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 3); steps > 0; --steps)
                    views.Step();
                views.Paint();
            }
            ASSERT_EQ(host.CompareWithFullPaint(), "") << "game " << game << " round " << round << "\n"
                                                       << views.History();
        }
        skipped += views.CountSkipped();
    }
    EXPECT_GT(skipped, 1000);  // items were left out where they stood already
    CTestHost::System().SetScale(1.0);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalViews, testing::Values(1.0, 1.5));

}  // namespace
