#include "tests/support/nested_game.h"

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/random.h"
#include "vexel/widgets/expander.h"
#include "vexel/widgets/gauge_box.h"
#include "vexel/widgets/notebook.h"
#include "vexel/widgets/splitter.h"

#include <algorithm>
#include <vector>

namespace vexel::test
{

using namespace vexelbase;

namespace
{

int const g_WindowSize = 400;

}  // namespace

class CNestedGame::CPlay
{
public:
    CPlay(std::uint64_t seed, double scale) : m_Random(seed), m_Host(g_WindowSize, g_WindowSize, scale)
    {
        Fill(m_Host.Root(), 4);
        m_Host.Paint();
    }
    ~CPlay()
    {
        for (CExpander* const expander : All<CExpander>())
            expander->StopSizing();
    }

    CTestHost& Host() { return m_Host; }
    void Reseed(std::uint64_t seed) { m_Random = CTestRandom(seed); }
    void Step()
    {
        int const deed = m_Random.Int(0, 19);
        if (deed < 5)
            With<CSplitter>(&CPlay::UseBar);
        else if (deed < 9)
            With<CExpander>(&CPlay::UseExpander);
        else if (deed < 12)
            With<CNotebook>(&CPlay::UseNotebook);
        else if (deed < 14)
            With<CGauge>(&CPlay::UseGauge);
        else if (deed == 14)
            With<CGaugeBoxEx>(&CPlay::UseBox);
        else if (deed == 15)
            With<CLeaf>(&CPlay::HideOrShow);
        else if (deed == 16 && m_Random.Chance(20))
            ResizeWindow();
        else
            PassTime();
    }
    bool Paint()
    {
        bool hasRoom = true;
        for (m_Host.Paint(); CVisualElement* const found = FindShown(m_Host.Root(), &IsMisplaced); m_Host.Paint())
        {
            m_Log.Note("taken out", found);
            found->SetVisible(false);
            m_Hidden.push_back(found->GetId());
            m_Host.Control().Rearrange();
            hasRoom = false;
        }
        return hasRoom;
    }
    std::string Compare() { return m_Host.CompareWithFullPaint(); }
    std::string Tell() { return m_Log.Text() + DescribeTree(m_Host.Root()); }
    std::string CheckThreads()
    {
        std::vector<CExpander*> const all = All<CExpander>();
        auto const sizing = std::count_if(all.begin(), all.end(), [](CExpander const* it) { return it->IsSizing(); });
        int const running = CTestHost::System().GetRunningRunners();
        if (running == sizing)
            return {};
        return std::to_string(running) + " threads for " + std::to_string(sizing) + " expanders\n" + Tell();
    }
    void ShowAll()
    {
        std::vector<CVisualElement*> all;
        Collect(m_Host.Root(), all);
        for (CVisualElement* const element : all)
            if (std::find(m_Hidden.begin(), m_Hidden.end(), element->GetId()) != m_Hidden.end())
                element->SetVisible(true);
        m_Hidden.clear();
        m_Host.Control().Rearrange();
    }

    int m_Moves = 0;
    int m_AnimatedSteps = 0;
    int m_Turned = 0;  // to other pages, and to other parts of expanders

private:
    template <class Widget> std::vector<Widget*> All()
    {
        std::vector<CVisualElement*> all;
        Collect(m_Host.Root(), all);
        std::vector<Widget*> found;
        for (CVisualElement* const element : all)
            if (auto* const widget = dynamic_cast<Widget*>(element))
                found.push_back(widget);
        return found;
    }
    template <class Widget> void With(void (CPlay::*use)(Widget&))
    {
        std::vector<Widget*> const all = All<Widget>();
        if (!all.empty())
            (this->*use)(*m_Random.Pick(all));
    }
    // Within a frame that shows and hides its parts by itself, what sticks out of the part counts.
    static bool IsMisplaced(CVisualElement* element)
    {
        CVisualElement* const parent = element->GetParent();
        if (!parent || dynamic_cast<CNotebook*>(parent))
            return false;
        if (dynamic_cast<CExpander*>(parent) || dynamic_cast<CGaugeBox*>(parent) ||
            dynamic_cast<CGaugeBox*>(parent->GetParent()))
            return false;
        Alignment const dock = element->GetAlignment();
        rectangle<int> const& pos = element->GetPos();
        if ((dock == alTop || dock == alBottom) && pos.Height() < element->GetSize().height)
            return true;
        if ((dock == alLeft || dock == alRight) && pos.Width() < element->GetSize().width)
            return true;
        return SticksOut(element) || (dynamic_cast<CGaugeBox*>(element) && FindShown(element, &SticksOut));
    }

    // Building ---------------------------------------------------------------------------------------------------------------

    template <class Widget> Widget* Named(Widget* widget)
    {
        widget->SetId(++m_LastId);
        return widget;
    }
    CBevel* NewPane(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    {
        auto* const pane = Named(new CBevel(parent, extent, alignment));
        pane->SetShape(static_cast<CBevel::BorderShape>(m_Random.Int(0, 7)));
        pane->SetBkColor(color_table[m_Random.Int(1, 20)]);
        return pane;
    }
    CLeaf* NewLeaf(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    {
        return Named(new CLeaf(parent, extent, alignment, m_Random.Int(0, 17)));
    }
    void Fill(CVisualElement* place, int depth)
    {
        int const kind = depth > 0 ? m_Random.Int(0, 6) : 7;
        if (kind < 3)
            AddBar(place, depth);
        else if (kind < 5)
            AddExpander(place, depth);
        else if (kind == 5)
            AddNotebook(place, depth);
        else
        {
            if (kind == 6)
                AddGauge(place);
            NewLeaf(place, {0, 0}, alClient);
        }
    }
    void AddBar(CVisualElement* place, int depth)
    {
        auto const edge = static_cast<Alignment>(m_Random.Int(alLeft, alBottom));
        int const extent = m_Random.Int(40, 120);
        CBevel* const first = NewPane(place, {extent, extent}, edge);
        auto* const bar = Named(new CSplitter(place, {5, 5}, edge));
        CBevel* const second = NewPane(place, {0, 0}, alClient);
        bar->SetElements(first, second);
        bar->SetBkColor(color_table[m_Random.Int(1, 8)]);
        bar->SetFgColor(color_table[m_Random.Int(9, 20)]);
        Fill(first, depth - 2);
        Fill(second, depth - 1);
    }
    void AddExpander(CVisualElement* place, int depth)
    {
        auto const direction = static_cast<CExpander::ExpandDirection>(m_Random.Int(0, 3));
        bool const sideways = direction >= CExpander::ExpandLeftRight;
        Alignment const edge = sideways ? (m_Random.Bool() ? alLeft : alRight) : (m_Random.Bool() ? alTop : alBottom);
        auto* const expander = Named(new CExpander(place, {10, 10}, edge));
        expander->SetExpandDirection(direction);
        expander->SetShape(m_Random.Bool() ? CBevel::ShapeBox : CBevel::ShapeNoFrame);
        int const frame = m_Random.Int(0, 4);
        expander->SetContentOffset({frame, frame, frame, frame});
        expander->SetTitle(NewTitle());
        expander->SetBody(NewBody(depth));
        Fill(place, depth - 1);
    }
    CLeaf* NewTitle()
    {
        int const extent = m_Random.Int(8, 16);
        return NewLeaf(nullptr, {extent, extent}, alNone);
    }
    CVisualElement* NewBody(int depth)
    {
        int const extent = m_Random.Int(4, 60);
        if (depth < 2 || m_Random.Bool())
            return NewLeaf(nullptr, {extent, extent}, alNone);
        CBevel* const body = NewPane(nullptr, {extent, extent}, alNone);
        Fill(body, 1);
        return body;
    }
    void AddNotebook(CVisualElement* place, int depth)
    {
        auto* const book = Named(new CNotebook(place, {0, 0}, alClient));
        for (int i = m_Random.Int(1, 3); i > 0; --i)
            NewPage(depth)->ReParent(book, true);
    }
    CVisualElement* NewPage(int depth)
    {
        CBevel* const page = NewPane(nullptr, {0, 0}, alNone);
        Fill(page, depth - 2);
        return page;
    }
    void AddGauge(CVisualElement* place)
    {
        if (m_Random.Bool())
        {
            Named(new CGauge(place, {12, 12}, static_cast<Alignment>(m_Random.Int(alLeft, alBottom))))
                ->SetMax(m_Random.Int(1, 100));
            return;
        }
        auto* const box = Named(new CGaugeBoxEx(place, {0, 0}, alTop));
        box->GetText().SetCaption("Copying");
        box->GetGauge().SetMax(m_Random.Int(1, 100));
    }

    // Using ------------------------------------------------------------------------------------------------------------------

    void UseBar(CSplitter& bar)
    {
        rectangle<int> const before = bar.GetPos();
        switch (m_Random.Int(0, 9))
        {
        case 0:
            bar.SetLiveResize(m_Random.Bool());
            return;
        case 1:
            bar.SetRefreshWhileMoving(m_Random.Bool());
            return;
        case 2:
            bar.SetHighlight(m_Random.Bool());
            return;
        case 3:
            bar.SetMinSize(m_Random.Int(0, 60));
            return;
        default:
            break;
        }
        if (m_Host.Mouse().IsHeld(mbLeft))
        {
            m_Log.Note("move on");
            int const x = m_Random.Int(0, g_WindowSize);
            int const y = m_Random.Int(0, g_WindowSize);
            m_Host.Mouse().Move(x, y);
            if (m_Random.Bool())
                m_Host.Mouse().Release();
            return;
        }
        if (before.Width() < 2 || before.Height() < 2 || !bar.IsDisplayable())
            return;
        m_Log.Note("drag", &bar);
        m_Host.Mouse().Press(bar, 1, 1);
        int const x = m_Random.Int(-40, 40);
        int const y = m_Random.Int(-40, 40);
        m_Host.Mouse().Move(bar, x, y);
        m_Moves += bar.GetPos() != before;
        if (m_Random.Chance(70))
            m_Host.Mouse().Release();
    }
    void UseExpander(CExpander& expander)
    {
        m_Log.Note("expander", &expander);
        switch (m_Random.Int(0, 9))
        {
        case 0:
            expander.GetTitle()->SetSize({m_Random.Int(8, 16), m_Random.Int(8, 16)}, false);
            break;
        case 1:
            expander.GetBody()->SetSize({m_Random.Int(4, 40), m_Random.Int(4, 40)}, false);
            break;
        case 2:
        {
            std::unique_ptr<CVisualElement> const former(expander.GetTitle());
            expander.SetTitle(NewTitle());
            ++m_Turned;
            break;
        }
        case 3:
        {
            std::unique_ptr<CVisualElement> const former(expander.GetBody());
            expander.SetBody(NewBody(2));
            ++m_Turned;
            break;
        }
        case 4:
            TurnTitle(expander);
            break;
        case 5:
            expander.Expand(m_Random.Bool(), false);
            break;
        default:
            expander.Expand(!expander.IsExpanded(), true);
            break;
        }
    }
    // To the opposite side.
    void TurnTitle(CExpander& expander)
    {
        CVisualElement* const title = expander.GetTitle();
        expander.SetExpandDirection(static_cast<CExpander::ExpandDirection>(expander.GetExpandDirection() ^ 1));
        expander.SetTitle(title);
        ++m_Turned;
    }
    void UseNotebook(CNotebook& book)
    {
        m_Log.Note("notebook", &book);
        int const count = book.GetChildren()->GetCount();
        int const index = m_Random.Int(-1, count);
        switch (m_Random.Int(0, 6))
        {
        case 0:
            if (count < 4)
                NewPage(3)->ReParent(&book, true);
            break;
        case 1:
            delete book.RemovePage(index);
            break;
        case 2:
        {
            CVisualElement* const page = NewPage(3);
            if (CVisualElement* const former = book.ReplacePage(index, page))
                delete former;
            else
                delete page;
            break;
        }
        default:
            book.SetPageIndex(index);
            break;
        }
        // An owner sees to it that a page shows.
        if (!FindShown(&book, [](CVisualElement*) { return true; }))
            book.SetPageIndex(0);
        ++m_Turned;
    }
    void UseGauge(CGauge& gauge)
    {
        m_Log.Note("gauge", &gauge);
        switch (m_Random.Int(0, 6))
        {
        case 0:
            gauge.SetMin(m_Random.Int(-20, 20));
            break;
        case 1:
            gauge.SetMax(m_Random.Int(-20, 100));
            break;
        case 2:
            gauge.Reset();
            break;
        case 3:
            gauge.SetTransparent(m_Random.Bool());
            break;
        default:
            gauge.Increase(m_Random.Int(-20, 30));
            break;
        }
    }
    void UseBox(CGaugeBoxEx& box)
    {
        m_Log.Note("box", &box);
        switch (m_Random.Int(0, 3))
        {
        case 0:
            box.SetMaxWidth(m_Random.Int(0, 200));
            break;
        case 1:
            box.GetText().SetCaption(m_Random.Bool() ? "Copying" : "two\nlines");
            break;
        case 2:
            box.GetButton().SetCaption(m_Random.Bool() ? "Stop" : "X");
            break;
        default:
            box.GetButton().SetVisible(m_Random.Bool());
            break;
        }
    }
    void HideOrShow(CLeaf& leaf)
    {
        if (dynamic_cast<CExpander*>(leaf.GetParent()) && m_Random.Bool())
            return;  // its body more seldom
        m_Log.Note("hide or show", &leaf);
        leaf.SetVisible(!leaf.IsVisible());
    }
    void ResizeWindow()
    {
        m_Log.Note("window");
        int const width = m_Random.Int(250, g_WindowSize);
        int const height = m_Random.Int(250, g_WindowSize);
        m_Host.Resize(width, height);
    }
    void PassTime()
    {
        m_Log.Note("time");
        m_Host.StepBackground();
        m_AnimatedSteps += m_Host.RunPending();
        m_Host.Clock().Advance(10);
    }

    CTestRandom m_Random;
    CTestHost m_Host;
    CGameLog m_Log;
    unsigned long m_LastId = 0;
    std::vector<unsigned long> m_Hidden;
};

CNestedGame::CNestedGame(std::uint64_t seed, double scale) : m_Play(std::make_unique<CPlay>(seed, scale)) {}
CNestedGame::~CNestedGame() = default;

CTestHost& CNestedGame::Host()
{
    return m_Play->Host();
}

void CNestedGame::Step()
{
    m_Play->Step();
}

void CNestedGame::Reseed(std::uint64_t seed)
{
    m_Play->Reseed(seed);
}

bool CNestedGame::Paint()
{
    return m_Play->Paint();
}

void CNestedGame::ShowAll()
{
    m_Play->ShowAll();
}

std::string CNestedGame::Compare()
{
    return m_Play->Compare();
}

std::string CNestedGame::CheckThreads()
{
    return m_Play->CheckThreads();
}

std::string CNestedGame::Tell()
{
    return m_Play->Tell();
}

int CNestedGame::GetMoves() const
{
    return m_Play->m_Moves;
}

int CNestedGame::GetAnimatedSteps() const
{
    return m_Play->m_AnimatedSteps;
}

int CNestedGame::GetTurned() const
{
    return m_Play->m_Turned;
}

}  // namespace vexel::test
