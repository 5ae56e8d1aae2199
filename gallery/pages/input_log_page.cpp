#include "gallery/pages/input_log_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <deque>

namespace gallery
{

namespace
{

/// The last lines of the log, the newest at the foot.
class CLogView : public CVisualElement
{
public:
    CLogView(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CVisualElement(parent, extent, alignment)
    {
        SetBkColor(ISysPalette::scWindow);
        SetFgColor(ISysPalette::scWindowText);
        CLog::Get().m_SigLine.connect(this, &CLogView::LineWritten);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<double> row = ToDouble(GetBounds());
        painter->FillRect(row.left, row.top, row.right, row.bottom);
        double const height = GetTextLineHeight() + ToInt(3 * painter->GetDPIScale());
        double const foot = row.bottom;
        row.left += ToInt(8 * painter->GetDPIScale());
        int fromEnd = 0;
        for (auto line = m_Lines.rbegin(); line != m_Lines.rend(); ++line)
        {
            ++fromEnd;
            row.top = foot - fromEnd * height;
            row.bottom = row.top + height - 1;
            if (row.top < 0)
                break;  // a line that is cut would lie over what is above
            painter->DrawString(row, *line, IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
        }
    }

private:
    void LineWritten(std::string const& line)
    {
        m_Lines.push_back(line);
        if (m_Lines.size() > 60)
            m_Lines.pop_front();
        Update(utElement);
    }

    std::deque<std::string> m_Lines;
};

}  // namespace

void CInputLogPage::Build(CVisualElement* parent)
{
    new CLogView(parent, {330, 0}, alRight);
    auto* const outer = new CPanel(parent, {0, 0}, alClient);
    outer->SetBkColor(color_table[26]);
    outer->SetFgColor(color_table[1]);  // the ground is light in every theme
    outer->SetCanHaveFocus(true);
    outer->SetText("outer");
    outer->SetTextFlags(IPainter::AlignLeft | IPainter::AlignTop);
    auto* const margin = new CPanel(outer, {0, 60}, alTop);
    margin->SetBkColor(color_table[26]);
    margin->SetFgColor(color_table[1]);  // the ground is light in every theme
    margin->SetText("a child that covers the upper part of the outer box");
    auto* const inner = new CPanel(outer, {0, 150}, alTop);
    inner->SetBkColor(color_table[21]);
    inner->SetFgColor(color_table[1]);  // the ground is light in every theme
    inner->SetText("inner: click here, then type");
    inner->SetCanHaveFocus(true);
    inner->SetCursor(12);
    ReportInput(outer, "outer");
    ReportInput(inner, "inner");
}

}  // namespace gallery
