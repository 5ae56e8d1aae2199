#include "vexel/charts/roll.h"

#include "vexel/core/control.h"
#include "vexel/core/dpi.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/sys_window.h"

namespace vexel
{

namespace
{

size<int> const g_CaptionSize{20, 20};

Alignment GetOppositeEdge(Alignment alignment)
{
    switch (alignment)
    {
    case alLeft:
        return alRight;
    case alRight:
        return alLeft;
    case alTop:
        return alBottom;
    case alBottom:
        return alTop;
    default:
        return alignment;
    }
}

// Of the strip's text as it reads, whichever way it is turned. Without a painter the strip is as thick as it was made.
int GetTextHeight(CControlCaption const& strip)
{
    ISysWindow* const window = strip.GetControl() ? strip.GetControl()->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter)
        return g_CaptionSize.height;
    font const textFont = strip.GetText().GetFont();
    CMeasureBracket const bracket(painter, textFont);
    return CeilToInt(painter->GetTextSize(strip.GetText().GetCaption(), &textFont, -1, false, false).height);
}

// Between the edges and the content, of both sides together.
size<int> GetMargins(CBevel const& bevel)
{
    rectangle<int> const& offset = bevel.GetOffset();
    rectangle<int> const& content = bevel.GetContentOffset();
    return {AddSaturated(AddSaturated(offset.left, offset.right), AddSaturated(content.left, content.right)),
            AddSaturated(AddSaturated(offset.top, offset.bottom), AddSaturated(content.top, content.bottom))};
}

}  // namespace

CRoll::CRoll(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CBevel(parent, extent, alignment), m_Caption(this, g_CaptionSize, GetOppositeEdge(alignment))
{
    m_Caption.SetDynamic(false);
    m_Caption.m_Clicked.connect(this, &CRoll::Expand);
    Layout();
}

void CRoll::SetCaptionAlignment(Alignment alignment)
{
    CAliveGuard const alive(this);
    m_Caption.SetAlignment(alignment);
    if (alive)
        Layout();
}

void CRoll::Layout()
{
    CArrowButton& arrow = m_Caption.GetArrow();
    switch (GetAlignment())
    {
    case alLeft:
        arrow.SetArrowType(m_Expanded ? CArrowButton::ArrowRight : CArrowButton::ArrowLeft);
        break;
    case alRight:
        arrow.SetArrowType(m_Expanded ? CArrowButton::ArrowLeft : CArrowButton::ArrowRight);
        break;
    case alTop:
        arrow.SetArrowType(m_Expanded ? CArrowButton::ArrowBottom : CArrowButton::ArrowTop);
        break;
    case alBottom:
        arrow.SetArrowType(m_Expanded ? CArrowButton::ArrowTop : CArrowButton::ArrowBottom);
        break;
    default:
        break;
    }
}

size<int> CRoll::CalcExpandedSize() const
{
    size<int> const margins = GetMargins(*this);
    size<int> const stripMargins = GetMargins(m_Caption);
    rectangle<int> const bounds = GetBounds();
    size<int> extent{bounds.right, bounds.bottom};
    Alignment const edge = GetAlignment();
    if (edge != alLeft && edge != alRight && edge != alTop && edge != alBottom)
        return extent;
    int const text = GetTextHeight(m_Caption);
    if (edge == alLeft || edge == alRight)
        extent.width = AddSaturated(text, AddSaturated(stripMargins.width, margins.width));
    else
        extent.height = AddSaturated(text, AddSaturated(stripMargins.height, margins.height));
    return extent;
}

void CRoll::Expand(CControlCaption*)
{
    CAliveGuard const alive(this);
    {
        // Ended also by an exception, but not where the roll is gone.
        class CScope
        {
        public:
            CScope(CAliveGuard const& alive, bool& flag) : m_Alive(alive), m_Flag(flag) { m_Flag = true; }
            ~CScope()
            {
                if (m_Alive)
                    m_Flag = false;
            }
            CScope(CScope const&) = delete;
            CScope& operator=(CScope const&) = delete;

        private:
            CAliveGuard const& m_Alive;
            bool& m_Flag;
        } const scope(alive, m_InExpand);
        m_Expanded = !m_Expanded;
        if (m_Expanded)
        {
            m_SavedSize = GetSize();
            SetSize(CalcExpandedSize(), false);
        }
        else
        {
            SetSize(m_SavedSize, false);
        }
    }
    alive.Check();
    Layout();
    alive.Check();
    OnRearrange(this);
    alive.Check();
    OnChange(this, utElement);
}

void CRoll::SetSize(size<int> const& extent, bool scale)
{
    if (m_Expanded && !m_InExpand)
    {
        size<int> asked = extent;
        if (scale)
            ApplyDPIScale(asked);
        if (asked.width > GetSize().width || asked.height > GetSize().height)
        {
            CAliveGuard const alive(this);
            m_Expanded = false;
            Layout();
            if (!alive)
                return;
        }
    }
    CBevel::SetSize(extent, scale);
}

}  // namespace vexel
