#include "vexel/platform/border.h"

#include "vexel/platform/painter.h"

#include <cmath>

namespace vexelbase
{

namespace
{

// Draws lines that belong to an inclusive rectangle. Left, top, right and bottom are meant as they are seen: they are
// exchanged where the mapping turns an axis round.
class CEdgePainter
{
public:
    CEdgePainter(IPainter* painter, rectangle<double> const& rect)
        : m_Painter(painter), m_Brush(painter->GetBrush()), m_Rect(rect)
    {
        m_Rect.Normalize();
        point<double> step{1, 1};
        painter->DeconvertCoord1(&step, true);
        m_StepX = std::isfinite(step.x) && step.x != 0 ? step.x : 1;
        m_StepY = std::isfinite(step.y) && step.y != 0 ? step.y : 1;
        if (m_StepX < 0)
            std::swap(m_Rect.left, m_Rect.right);
        if (m_StepY < 0)
            std::swap(m_Rect.top, m_Rect.bottom);
    }
    ~CEdgePainter() { m_Painter->SetBrush(m_Brush); }
    CEdgePainter(CEdgePainter const&) = delete;
    CEdgePainter& operator=(CEdgePainter const&) = delete;

    void SetColor(ISysPalette::SysColor number)
    {
        brush value;
        value.color =
            m_Painter->m_Palette ? m_Painter->m_Palette->GetColor(number) : GetDefaultPalette()->GetColor(number);
        m_Painter->SetBrush(value);
    }

    void Fill() { m_Painter->FillRect(m_Rect.left, m_Rect.top, m_Rect.right, m_Rect.bottom); }
    void Left() { m_Painter->FillRect(m_Rect.left, m_Rect.top, m_Rect.left, m_Rect.bottom); }
    void Top() { m_Painter->FillRect(m_Rect.left, m_Rect.top, m_Rect.right, m_Rect.top); }
    void Right() { m_Painter->FillRect(m_Rect.right, m_Rect.top, m_Rect.right, m_Rect.bottom); }
    void Bottom() { m_Painter->FillRect(m_Rect.left, m_Rect.bottom, m_Rect.right, m_Rect.bottom); }

    // Goes one pixel inward; false if there is no inside.
    bool Inset()
    {
        m_Rect.left += m_StepX;
        m_Rect.top += m_StepY;
        m_Rect.right -= m_StepX;
        m_Rect.bottom -= m_StepY;
        return (m_Rect.right - m_Rect.left) * m_StepX >= 0 && (m_Rect.bottom - m_Rect.top) * m_StepY >= 0;
    }

private:
    IPainter* m_Painter;
    brush m_Brush;
    rectangle<double> m_Rect;
    double m_StepX = 1;
    double m_StepY = 1;
};

void DrawBox(CEdgePainter& edge, BorderStyle style, bool twoLines)
{
    switch (style)
    {
    case bsRaised:
        edge.SetColor(ISysPalette::scLight);
        edge.Left();
        edge.Top();
        edge.SetColor(ISysPalette::scDarkShadow);
        edge.Right();
        edge.Bottom();
        if (twoLines && edge.Inset())
        {
            edge.SetColor(ISysPalette::scShadow);
            edge.Right();
            edge.Bottom();
        }
        return;
    case bsSunken:
        edge.SetColor(ISysPalette::scDarkShadow);
        edge.Left();
        edge.Top();
        edge.SetColor(ISysPalette::scLight);
        edge.Right();
        edge.Bottom();
        if (twoLines && edge.Inset())
        {
            edge.SetColor(ISysPalette::scShadow);
            edge.Left();
            edge.Top();
        }
        return;
    default:
        edge.SetColor(ISysPalette::scShadow);
        edge.Left();
        edge.Top();
        edge.Right();
        edge.Bottom();
        return;
    }
}

// The colour of a line that stands alone, as that side of a box has it.
void SetLineColor(CEdgePainter& edge, BorderStyle style, bool leftOrTop)
{
    if (style != bsRaised && style != bsSunken)
        edge.SetColor(ISysPalette::scShadow);
    else if ((style == bsRaised) == leftOrTop)
        edge.SetColor(ISysPalette::scLight);
    else
        edge.SetColor(ISysPalette::scDarkShadow);
}

}  // namespace

void DrawBorder(IPainter* painter, rectangle<double> const& rect, BorderShape shape, BorderStyle style, bool fill)
{
    if (!painter)
        return;
    CEdgePainter edge(painter, rect);
    switch (shape)
    {
    case bsBox:
    case bsThinBox:
        if (fill)
        {
            edge.SetColor(ISysPalette::scFace);
            edge.Fill();
        }
        DrawBox(edge, style, shape == bsBox);
        break;
    case bsTopLine:
        SetLineColor(edge, style, true);
        edge.Top();
        break;
    case bsBottomLine:
        SetLineColor(edge, style, false);
        edge.Bottom();
        break;
    case bsLeftLine:
        SetLineColor(edge, style, true);
        edge.Left();
        break;
    case bsRightLine:
        SetLineColor(edge, style, false);
        edge.Right();
        break;
    case bsFrame:
        DrawBox(edge, style, false);
        break;
    case bsNothing:
        break;
    }
}

}  // namespace vexelbase
