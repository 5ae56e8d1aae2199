// Scrolled views painted bit by bit look as if painted at once: played with random trees. What is native follows.

#include "tests/scroll/scroll_box_support.h"
#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "vexel/core/invalid_region.h"
#include "vexel/platform/memory/memory_edit.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/scroll/scroller.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

// Shows its focus.
class CFocusLeaf : public CLeaf
{
public:
    using CLeaf::CLeaf;

protected:
    void DrawContent(IPainter* painter) override
    {
        CLeaf::DrawContent(painter);
        if (IsFocused())
            painter->FocusRect(1, 1, GetBounds().right - 1, GetBounds().bottom - 1);
    }
    void HandleGetFocus(CVisualElement* other, bool focused) override
    {
        CLeaf::HandleGetFocus(other, focused);
        Update(utElement);
    }
    void HandleLostFocus(CVisualElement*) override { Update(utElement); }
};

// Fills the part of its pattern that lies in a rectangle: cells whose colours follow from their logical place.
void DrawPattern(IPainter* painter, rectangle<int> const& rect, int startX, int startY, int salt)
{
    int const left = rect.left + startX, top = rect.top + startY;
    for (int row = top / 6; row * 6 <= rect.bottom + startY; ++row)
        for (int column = left / 9; column * 9 <= rect.right + startX; ++column)
        {
            painter->SetBrush(brush{color_table[1 + (row * 7 + column * 3 + salt) % 26], brush::bsSolid});
            int const x = column * 9 - startX, y = row * 6 - startY;
            painter->FillRect(std::max(x, rect.left), std::max(y, rect.top), std::min(x + 8, rect.right),
                              std::min(y + 5, rect.bottom));
        }
}

// Paints only what does not stand on the screen any more.
class CPane : public CCentralPart
{
public:
    explicit CPane(CVisualElement* parent) : CCentralPart(parent, {10, 10}, alClient)
    {
        m_Horz.m_CutsStart = m_Vert.m_CutsStart = true;
        SetHorzScroll(&m_Horz);
        SetVertScroll(&m_Vert);
    }
    CTestModel m_Horz{0, 300};
    CTestModel m_Vert{0, 300};
    int m_Salt = 0;
    static inline int s_PartlyPainted = 0;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<double> const whole = GetDrawRect(painter);
        rectangle<double> valid = GetDrawValidRect(painter);
        if (IsDrawnWithParent())
            valid = {whole.left, whole.top, whole.left, whole.top};
        CInvalidRegion const strips(whole, valid);
        if (valid.Width() > 0 && valid.Height() > 0)
            ++s_PartlyPainted;
        for (int i = 0; i < strips.GetCount(); ++i)
        {
            rectangle<int> const strip{ToInt(strips[i].left), ToInt(strips[i].top), ToInt(strips[i].right),
                                       ToInt(strips[i].bottom)};
            DrawPattern(painter, strip, ToInt(m_Horz.m_Start), ToInt(m_Vert.m_Start), m_Salt);
        }
    }
};

// Scrolls along with a pane.
class CHead : public CScrollableElement
{
public:
    CHead(CVisualElement* parent, Alignment alignment) : CScrollableElement(parent, {10, 10}, alignment) {}

protected:
    void DrawContent(IPainter* painter) override
    {
        IScrollModel* const model = GetAlignment() == alTop ? GetHorzScroll() : GetVertScroll();
        int const start = model ? ToInt(model->GetStart()) : 0;
        rectangle<int> const bounds = GetBounds();
        if (GetAlignment() == alTop)
            DrawPattern(painter, bounds, start, 0, 2);
        else
            DrawPattern(painter, bounds, 0, start, 2);
    }
};

class CNative : public CContainer
{
public:
    CNative(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CContainer(parent, extent, alignment)
    {
        SetCanHaveFocus(true);
    }
};

class CScrollGame
{
public:
    CScrollGame(CTestHost& host, CTestRandom& random) : m_Host(host), m_Random(random)
    {
        m_Base = new CFocusLeaf(host.Root(), {0, 0}, alClient, 3);
        for (int i = random.Int(1, 3); i > 0; --i)
            Add();
        Settle();
    }

    void Step()
    {
        Settle();
        switch (m_Random.Int(0, 15))
        {
        case 0:
        case 1:
        case 2:
            Add();
            break;
        case 3:
            Remove();
            break;
        case 4:
            Resize();
            break;
        case 5:
            Change();
            break;
        case 6:
        case 7:
            Wheel();
            break;
        case 8:
        case 9:
            MoveBar();
            break;
        case 10:
            MoveByCode();
            break;
        case 11:
            ChangeRange();
            break;
        case 12:
            Click();
            break;
        case 13:
            Focus();
            break;
        case 14:
            MoveFree();
            break;
        default:
            if (m_Random.Chance(30))
                m_Host.Resize(m_Random.Int(90, 220), m_Random.Int(80, 180));
            break;
        }
    }

    // Lays out, and removes what finds no room.
    void Settle()
    {
        for (;;)
        {
            m_Base->ForceRearrange();
            CVisualElement* const misplaced = FindShown(m_Base, IsMisplaced);
            if (!misplaced)
                break;
            Drop(misplaced);
        }
        m_All.clear();
        Collect(m_Base, m_All);
    }

    // Native controls stand where they would be put now.
    std::string CheckNatives()
    {
        Settle();
        for (CVisualElement* const element : m_All)
        {
            auto* const native = dynamic_cast<CNative*>(element);
            if (!native || !native->GetNativeControl())
                continue;
            ICustomControl* const control = native->GetNativeControl();
            rectangle<int> const rect = control->GetRect();
            bool const visible = control->IsVisible();
            rectangle<int> shown = native->GetBounds();
            bool const shows = native->GetDisplayableRect(&shown) && !shown.IsEmpty();
            if (visible != shows)
                return "a native control is " + std::string(visible ? "shown" : "hidden") + "\n" + History();
            native->UpdateControlPos();
            if (visible && control->GetRect() != rect)
                return "a native control at " + Describe(rect) + " belongs to " + Describe(control->GetRect()) + "\n" +
                       History();
        }
        return "";
    }
    std::string History() const { return m_Log.Text() + DescribeTree(m_Base); }

private:
    template <class T> T* Pick()
    {
        std::vector<T*> found;
        for (CVisualElement* const element : m_All)
            if (auto* const one = dynamic_cast<T*>(element))
                found.push_back(one);
        return found.empty() ? nullptr : m_Random.Pick(found);
    }
    // Something that the game itself has put somewhere.
    CVisualElement* PickOwn()
    {
        std::vector<CVisualElement*> found;
        for (CVisualElement* const element : m_All)
            if (element->IsDynamic() && !dynamic_cast<CPane*>(element) && !IsContent(element))
                found.push_back(element);
        return found.empty() ? nullptr : m_Random.Pick(found);
    }
    static bool IsContent(CVisualElement* element)
    {
        CVisualElement* const parent = element->GetParent();
        return dynamic_cast<CScrollContainer::CCentralPart*>(parent) || dynamic_cast<CScroller::CCentralPart*>(parent);
    }
    size<int> RandomSize() { return {m_Random.Int(5, 60), m_Random.Int(5, 60)}; }

    void Add()
    {
        // Into the base, or into what some view shows.
        CVisualElement* parent = m_Base;
        std::vector<CVisualElement*> contents;
        for (CVisualElement* const element : m_All)
            if (IsContent(element))
                contents.push_back(element);
        if (!contents.empty() && m_Random.Chance(70))
            parent = m_Random.Pick(contents);
        // What is docked nowhere stands among its like, so that nothing overlaps.
        bool const free = parent != m_Base && (parent->GetChildren()->GetCount() == 0
                                                   ? m_Random.Chance(40)
                                                   : parent->GetChildren()->GetItem(0)->GetAlignment() == alNone);
        if (free && parent->GetChildren()->GetCount() >= 12)
            return;
        if (free)
        {
            auto* const leaf = new CFocusLeaf(parent, {10, 10}, alNone, m_Random.Int(0, 17));
            leaf->SetCanHaveFocus(m_Random.Bool());
            Place(leaf);
            parent->Update(utElement);
            m_Log.Note("add free", leaf);
            return;
        }
        auto const alignment = static_cast<Alignment>(m_Random.Int(alLeft, alBottom));
        size<int> const large{m_Random.Int(45, 90), m_Random.Int(45, 80)};
        CVisualElement* element = nullptr;
        switch (m_Random.Int(0, 7))
        {
        case 0:
        case 1:
        {
            auto* const container = new CScrollContainer(parent, large, alignment);
            container->SetScrolled(
                new CFocusLeaf(nullptr, {m_Random.Int(20, 250), m_Random.Int(20, 250)}, alNone, m_Random.Int(0, 17)));
            container->GetCentralPart().SetFillAroundChild(m_Random.Chance(30));
            container->GetCentralPart().SetFitMode(m_Random.Chance(70) ? CScrollContainer::fmNone
                                                                       : CScrollContainer::fmWidth);
            element = container;
            break;
        }
        case 2:
        case 3:
            element = AddBox(parent, large, alignment);
            break;
        case 4:
        {
            auto* const scroller = new CScroller(parent, large, alignment);
            scroller->SetScrolled(new CFocusLeaf(nullptr, {10, m_Random.Int(20, 250)}, alNone, m_Random.Int(0, 17)));
            element = scroller;
            break;
        }
        case 5:
        {
            auto* const native = new CNative(parent, RandomSize(), alignment);
            vexel_ptr<IEdit> const edit = m_Host.Window().CreateEdit(false);
            native->SetNativeControl(edit.get());
            element = native;
            break;
        }
        default:
            element = new CFocusLeaf(parent, RandomSize(), alignment, m_Random.Int(0, 17));
            element->SetCanHaveFocus(m_Random.Bool());
            break;
        }
        m_Log.Note("add", element);
    }
    CVisualElement* AddBox(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    {
        auto* const box = new CScrollBox(parent, extent, alignment);
        CHead* const top = m_Random.Bool() ? new CHead(box, alTop) : nullptr;
        CHead* const left = m_Random.Bool() ? new CHead(box, alLeft) : nullptr;
        auto* const pane = new CPane(box);
        pane->m_Horz.m_To = m_Random.Int(10, 300);
        pane->m_Vert.m_To = m_Random.Int(50, 300);
        if (m_Random.Chance(20))
            pane->m_Vert.m_From = 40;
        box->ConnectElement(pane, CScrollBox::ctBoth, true);
        if (top)
            box->ConnectElement(top, CScrollBox::ctHorizontal, false);
        if (left)
            box->ConnectElement(left, CScrollBox::ctVertical, false);
        box->SetUpdateAtOnce(m_Random.Chance(20));
        box->SetCornerAlways(m_Random.Chance(20));
        if (m_Random.Chance(20))
            box->GetVertElement().SetPolicy(static_cast<CScrollElement::Policy>(m_Random.Int(1, 2)));
        return box;
    }
    // In a cell of 45 x 45 that no other stands in.
    void Place(CVisualElement* element)
    {
        IVisualElements* const siblings = element->GetParent()->GetChildren();
        for (;;)
        {
            int const left = 45 * m_Random.Int(0, 3), top = 45 * m_Random.Int(0, 3);
            bool taken = false;
            for (int i = 0; i < siblings->GetCount(); ++i)
            {
                rectangle<int> const& pos = siblings->GetItem(i)->GetPos();
                taken = taken || (siblings->GetItem(i) != element && pos.left / 45 == left / 45 &&
                                  pos.top / 45 == top / 45 && !pos.IsEmpty());
            }
            if (taken)
                continue;
            element->SetPos({left + m_Random.Int(0, 5), top + m_Random.Int(0, 5), left + m_Random.Int(10, 44),
                             top + m_Random.Int(10, 44)},
                            false);
            return;
        }
    }
    void Remove()
    {
        if (CVisualElement* const element = PickOwn())
        {
            m_Log.Note("remove", element);
            Drop(element);
        }
    }
    void Drop(CVisualElement* element)
    {
        while (!element->IsDynamic() || IsContent(element) || dynamic_cast<CPane*>(element) ||
               dynamic_cast<CHead*>(element))
            element = element->GetParent();
        CVisualElement* const parent = element->GetParent();
        m_Log.Note("drop", element);
        element->ReParent(nullptr, true);
        delete element;
        parent->Update(utElement);
        m_All.clear();
        Collect(m_Base, m_All);
    }
    void Resize()
    {
        if (m_All.empty())
            return;
        std::vector<CVisualElement*> found;
        for (CVisualElement* const element : m_All)
            if (element->IsDynamic() && !dynamic_cast<CPane*>(element))
                found.push_back(element);
        if (found.empty())
            return;
        CVisualElement* const element = m_Random.Pick(found);
        bool const view = dynamic_cast<CScrollBox*>(element) || dynamic_cast<CScroller*>(element);
        element->SetSize(view                 ? size<int>{m_Random.Int(50, 120), m_Random.Int(50, 120)}
                         : IsContent(element) ? size<int>{m_Random.Int(20, 250), m_Random.Int(20, 250)}
                                              : RandomSize(),
                         false);
        m_Log.Note("size", element);
    }
    void Change()
    {
        CVisualElement* const element = PickOwn();
        if (!element)
            return;
        switch (m_Random.Int(0, 2))
        {
        case 0:
            element->SetVisible(!element->IsVisible());
            if (element->GetAlignment() == alNone)
                element->GetParent()->Update(utElement);
            m_Log.Note(element->IsVisible() ? "show" : "hide", element);
            break;
        case 1:
            if (element->GetAlignment() == alNone || dynamic_cast<CHead*>(element))
                return;
            element->SetAlignment(static_cast<Alignment>(m_Random.Int(alLeft, alBottom)));
            m_Log.Note("dock", element);
            break;
        default:
            if (dynamic_cast<CNative*>(element))
                return;  // a native control takes its natural size then
            element->SetBkColor(color_table[m_Random.Int(9, 27)]);
            m_Log.Note("colour", element);
            break;
        }
    }
    void Wheel()
    {
        m_Host.Mouse().Wheel(m_Random.Int(0, 200), m_Random.Int(0, 150), m_Random.Int(-6, 6));
        m_Log.Note("wheel", m_Base);
    }
    void MoveBar()
    {
        CScrollBox* const box = Pick<CScrollBox>();
        if (!box)
            return;
        auto* const bar =
            dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(m_Random.Bool() ? box->GetVertBar() : box->GetHorzBar());
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
        m_Log.Note("bar", box);
    }
    void MoveByCode()
    {
        CScrollBox* const box = Pick<CScrollBox>();
        if (!box)
            return;
        (m_Random.Bool() ? box->GetWrappedVertScroll() : box->GetWrappedHorzScroll())->SetStart(m_Random.Int(0, 120));
        if (m_Random.Bool())
            box->GetWrappedVertScroll()->SetStart(m_Random.Int(0, 120));
        m_Log.Note("start", box);
    }
    void ChangeRange()
    {
        CPane* const pane = Pick<CPane>();
        if (!pane)
            return;
        auto* const box = static_cast<CScrollBox*>(pane->GetParent());
        if (m_Random.Bool())
        {
            pane->m_Salt = m_Random.Int(0, 20);
            pane->Invalidate();
            pane->Update(utElement);
            m_Log.Note("pattern", box);
            return;
        }
        (m_Random.Bool() ? pane->m_Vert : pane->m_Horz).m_To = m_Random.Int(50, 300);
        box->RefreshScroll();
        m_Log.Note("range", box);
    }
    void Click()
    {
        CScroller* const scroller = Pick<CScroller>();
        if (!scroller)
            return;
        for (int i = m_Random.Int(1, 3); i > 0; --i)
            m_Random.Bool() ? scroller->GetCentralPart().OnTopButtonClick(nullptr)
                            : scroller->GetCentralPart().OnBottomButtonClick(nullptr);
        m_Log.Note("click", scroller);
    }
    void Focus()
    {
        if (m_Random.Bool())
            m_Host.Keyboard().Tab(m_Random.Bool());
        else if (m_Random.Bool())
            m_Host.Mouse().Click(m_Random.Int(0, 200), m_Random.Int(0, 150));
        else if (CVisualElement* const leaf = Pick<CFocusLeaf>())
            leaf->SetFocus(true);
        m_Log.Note("focus", m_Base);
    }
    void MoveFree()
    {
        CVisualElement* const element = PickOwn();
        if (!element || element->GetAlignment() != alNone)
            return;
        m_Log.Note("move", element);
        Place(element);
        element->GetParent()->Update(utElement);
    }
    static bool IsMisplaced(CVisualElement* element)
    {
        rectangle<int> const& pos = element->GetPos();
        Alignment const dock = element->GetAlignment();
        // One that got less than it asked for lies over its neighbours.
        bool const squeezed = ((dock == alLeft || dock == alRight) && pos.Width() < element->GetSize().width) ||
                              ((dock == alTop || dock == alBottom) && pos.Height() < element->GetSize().height);
        return !IsContent(element) && (squeezed || SticksOut(element));
    }

    CTestHost& m_Host;
    CTestRandom& m_Random;
    CVisualElement* m_Base = nullptr;
    std::vector<CVisualElement*> m_All;
    CGameLog m_Log;
};

class IncrementalScroll : public testing::TestWithParam<double>
{};

TEST_P(IncrementalScroll, LooksAsIfPaintedAtOnceAndNativeControlsFollow)
{
    CTestRandom random;
    CPane::s_PartlyPainted = 0;
    for (int game = 0; game < 40; ++game)
    {
        CTestHost host(random.Int(90, 220), random.Int(80, 180), GetParam());
        host.Focus();
        CScrollGame views(host, random);
        for (int round = 0; round < 40; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 4); steps > 0; --steps)
                    views.Step();
                views.Settle();
                host.Paint();
            }
            ASSERT_EQ(views.CheckNatives(), "") << "game " << game << " round " << round;
            host.Paint();
            ASSERT_EQ(host.CompareWithFullPaint(), "") << "game " << game << " round " << round << "\n"
                                                       << views.History();
        }
    }
    EXPECT_GT(CPane::s_PartlyPainted, 50);  // the pixels of panes were really moved
    CTestHost::System().SetScale(1.0);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalScroll, testing::Values(1.0, 1.5));

}  // namespace
