// A header painted bit by bit looks as if painted at once: played with random users.

#include "tests/headers/header_grid.h"
#include "tests/support/game.h"
#include "tests/support/slot.h"
#include "vexel/core/clip_holder.h"
#include "vexel/platform/convert.h"
#include "vexel/scroll/central_part.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/item_scroll_model.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// Sections side by side or one below the other, scrolled by pixels.
class CBands : public CCentralPart
{
public:
    CBands(CVisualElement* parent, CSections const& sections, CDefaultColumnViewModel& items, bool upright)
        : CCentralPart(parent, {0, 0}, alClient), m_Sections(sections), m_Items(items), m_Upright(upright)
    {
        m_Items.m_SigChanged.connect(this, &CBands::Changed);
    }
    void Changed() { Update(utElement); }

    void SetPos(rectangle<int> const& rect, bool force) override
    {
        CCentralPart::SetPos(rect, force);
        m_Items.SetViewSize(m_Upright ? rect.Height() : rect.Width(), false);
    }
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
        CClipHolder const clip(painter,
                               {0.0, 0.0, static_cast<double>(bounds.right), static_cast<double>(bounds.bottom)});
        int from = -m_Items.GetOffset();
        for (int i = 0; i < m_Items.GetCount(); ++i)
        {
            int const to = from + m_Items.GetItemSize(i);
            brush fill;
            fill.color = color_table[9 + std::max(m_Sections.GetModelIndex(i), 0) % 18];
            painter->SetBrush(fill);
            if (m_Upright)
                painter->Rectangle(0, from, bounds.right, to - 1);
            else
                painter->Rectangle(from, 0, to - 1, bounds.bottom);
            from = to;
        }
    }

private:
    CSections const& m_Sections;
    CDefaultColumnViewModel& m_Items;
    bool const m_Upright;
};

// They outlive the host.
struct SModels
{
    CSections sections{{30, 20, 40, 30, 20, 40, 30, 20, 40, 30}};
    CDefaultDiscreteItemViewModel whole;
    CDefaultColumnViewModel pixels;
    CContinuousItemScrollModel scroll;
};

// A header of a scroll box, and its user and owner at random.
class CHeaderGame
{
public:
    CHeaderGame(CTestHost& host, CTestRandom& random, SModels& models)
        : m_Host(host), m_Random(random), m_Sections(models.sections)
    {
        m_Box = new CScrollBox(host.Root(), {0, 0}, alClient);
        Alignment const side = static_cast<Alignment>(random.Int(alLeft, alBottom));
        m_Upright = side == alLeft || side == alRight;
        if (random.Chance(30))
            new CViewPane(m_Box, {random.Int(5, 20), random.Int(5, 20)},
                          m_Upright ? (random.Bool() ? alTop : alBottom) : (random.Bool() ? alLeft : alRight));
        m_Header = new CSimpleHeader(m_Box, {random.Int(12, 30), random.Int(12, 30)}, side);
        m_Header->SetBkColor(color_table[21]);
        if (random.Chance(30))
            new CViewPane(m_Box, {random.Int(5, 20), random.Int(5, 20)},
                          static_cast<Alignment>(random.Int(alLeft, alBottom)));
        CScrollBox::ConnectionType const axis = m_Upright ? CScrollBox::ctVertical : CScrollBox::ctHorizontal;
        if (!m_Upright && random.Bool())
        {
            auto* const grid = new CSectionGrid(m_Box, &m_Sections);
            grid->SetColumnViewModel(&models.whole);
            grid->GetRowViewModel()->SetCount(5);
            m_Items = &models.whole;
            m_View = grid;
            m_Grid = grid;
            m_Box->ConnectElement(grid, CScrollBox::ctBoth, true);
        }
        else
        {
            auto* const bands = new CBands(m_Box, m_Sections, models.pixels, m_Upright);
            models.scroll.SetViewModel(&models.pixels);
            m_Upright ? bands->SetVertScroll(&models.scroll) : bands->SetHorzScroll(&models.scroll);
            m_Items = &models.pixels;
            m_View = bands;
            m_Box->ConnectElement(bands, axis, true);
        }
        m_Items->SetDefaultItemSize(random.Int(15, 40));
        m_Items->SetCount(m_Sections.GetItemCount());
        m_Header->SetModel(&m_Sections);
        m_Header->SetViewModel(m_Items);
        SetStyle(m_Header->GetStyle());
        m_Sections.ConnectHeader(m_Header);
        m_Box->ConnectElement(m_Header, axis, false);
        m_Sections.m_Sorting = {0, 1, 2};
        m_Moved = Listen(m_Header->m_SigSectionMoved, [this](CSimpleHeader*, int, int) { RepaintView(); });
        m_Resized = Listen(m_Header->m_SigResized, [this](CSimpleHeader*, int, int) { RepaintView(); });
        m_Box->RefreshScroll();
        host.Paint();
    }

    void Step()
    {
        switch (m_Random.Int(0, 5))
        {
        case 0:
            Own();
            break;
        case 1:
            Scroll();
            break;
        default:
            Use();
            break;
        }
    }
    std::string History() const
    {
        std::string text = "header at " + Describe(m_Header->GetPos()) + ", docked " +
                           std::to_string(m_Header->GetAlignment()) + ", view at " + Describe(m_View->GetPos()) + "\n";
        return text + m_Log.Text();
    }
    bool IsDragged() const { return m_Host.Control().GetControl()->GetDraggedElement() != nullptr; }

private:
    void Use()
    {
        CMouse& mouse = m_Host.Mouse();
        switch (m_Random.Int(0, 9))
        {
        case 0:
            if (mouse.IsHeld(mbLeft))
                break;
            if (m_Random.Chance(10))
                mouse.Click(mbRight);
            mouse.Press();
            m_Log.Note("press");
            break;
        case 1:
        case 2:
            mouse.Release();
            m_Log.Note("release");
            break;
        case 3:
            if (m_Random.Chance(20) && !IsDragged())  // that would go on without the events of a capture
            {
                mouse.LoseRelease();
                m_Log.Note("lost release");
            }
            if (m_Random.Chance(20) && !mouse.IsHeld(mbLeft))
            {
                mouse.DoubleClick();
                m_Log.Note("double click");
            }
            break;
        case 4:
            mouse.Leave();
            m_Log.Note("leave");
            break;
        default:
            MoveAbout(m_Host, *m_Header, m_Random, m_Log);
            break;
        }
    }
    void Scroll()
    {
        WaitOrScroll(m_Host, *(m_Upright ? m_Box->GetWrappedVertScroll() : m_Box->GetWrappedHorzScroll()), m_Random,
                     m_Log);
    }
    void Own()
    {
        switch (m_Random.Int(0, 10))
        {
        case 0:
        {
            int const item = m_Random.Int(0, 9);
            int const size = m_Random.Int(3, 70);
            m_Items->SetItemSize(item, size);
            m_Log.Note("size " + std::to_string(item) + " " + std::to_string(size));
            break;
        }
        case 1:
            m_Items->SetCount(m_Random.Int(0, 10));
            m_Log.Note("count " + std::to_string(m_Items->GetCount()));
            break;
        case 2:
            SetStyle(static_cast<unsigned>(m_Random.Int(0, 15)));
            m_Log.Note("style " + std::to_string(m_Header->GetStyle()));
            break;
        case 3:
            m_Header->SetNativeDrawing(!m_Header->IsNativeDrawing());
            m_Header->Update(utElement);
            m_Log.Note("native");
            break;
        case 4:
            m_Items->SetStretchLastItem(!m_Items->IsLastItemStretched());
            m_Header->Update(utElement);
            m_Log.Note("stretch");
            break;
        case 5:
            m_Header->SetEnabled(!m_Header->IsEnabled());
            m_Log.Note("enable");
            break;
        case 6:
            m_Random.Shuffle(m_Sections.m_Sorting);
            m_Sections.m_SigChanged();
            m_Log.Note("sort");
            break;
        case 7:
            m_Header->SetModel(m_Random.Bool() ? &m_Sections : nullptr);
            m_Log.Note("model");
            break;
        case 8:
            m_Header->SetViewModel(m_Random.Bool() ? m_Items : nullptr);
            m_Log.Note("view model");
            break;
        case 9:
            m_Header->SetShowDragPointer(m_Random.Bool());
            break;
        default:
            m_Header->SetFont(BigFont(m_Random.Int(6, 14)));
            m_Log.Note("font");
            break;
        }
        RepaintView();
        if (!m_Header->GetViewModel())
            m_Header->Update(utElement);
        m_Box->RefreshScroll();
    }
    // What the owner of the models has to ask for.
    void RepaintView()
    {
        if (m_Grid)
            m_Grid->GetRowViewModel()->AddDirtyItems(0, 10);
        m_View->Update(utElement);
    }
    // A grid paints and moves only what is new, past the picture that is kept under a dragged item.
    void SetStyle(unsigned style) { m_Header->SetStyle(m_Grid ? style & ~unsigned{CSimpleHeader::hsDrag} : style); }
    static font BigFont(int points)
    {
        font value;
        value.size = points;
        return value;
    }

    CTestHost& m_Host;
    CTestRandom& m_Random;
    CScrollBox* m_Box = nullptr;
    CSimpleHeader* m_Header = nullptr;
    CVisualElement* m_View = nullptr;
    CSectionGrid* m_Grid = nullptr;
    IBaseItemViewModel* m_Items = nullptr;
    CGameLog m_Log{30};
    bool m_Upright = false;

    std::unique_ptr<CSlot<CSimpleHeader*, int, int>> m_Moved;
    std::unique_ptr<CSlot<CSimpleHeader*, int, int>> m_Resized;
    CSections& m_Sections;
};

class IncrementalHeaders : public testing::TestWithParam<double>
{};

TEST_P(IncrementalHeaders, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int drags = 0;
    for (int game = 0; game < 60; ++game)
    {
        SModels models;
        CTestHost host(random.Int(90, 200), random.Int(90, 160), GetParam());
        CHeaderGame header(host, random, models);
        for (int round = 0; round < 80; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 4); steps > 0; --steps)
                    header.Step();
                host.Paint();
            }
            drags += header.IsDragged() ? 1 : 0;
            ASSERT_EQ(host.CompareWithFullPaint(), "") << header.History();
            if (random.Chance(3))
                host.Resize(random.Int(90, 200), random.Int(90, 160));
        }
    }
    EXPECT_GT(drags, 30);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalHeaders, testing::Values(1.0, 1.5));

}  // namespace
