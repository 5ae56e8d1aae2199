#include "gallery/pages/bar_page.h"

#include "vexel/core/clip_holder.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/scroll/scroll_converter.h"

#include <algorithm>

namespace gallery
{

namespace
{

/// The crossings of two bars.
class CCells : public CScrollableElement
{
public:
    CCells(CVisualElement* parent, CBarSections& columns, CBarSections& rows)
        : CScrollableElement(parent, {0, 0}, alClient), m_Columns(columns), m_Rows(rows)
    {
        SetBkColor(ISysPalette::scWindow);
        SetFgColor(ISysPalette::scWindowText);
        SetHorzScroll(&columns);
        SetVertScroll(&rows);
        SetCentralPane(this);
    }
    bool ScrollContent(int, int) override { return true; }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
        CClipHolder const clip(painter, ToDouble(bounds));
        painter->SetPen({_color::FromRgb(0xD0, 0xD0, 0xD0), pen::psSolid, 1});
        CScrollConverter const across(&m_Columns);
        CScrollConverter const down(&m_Rows);
        double const left = across.L2P(m_Columns.GetStart());
        double const top = down.L2P(m_Rows.GetStart());
        for (int row = 0; row < m_Rows.GetItemCount(); ++row)
        {
            for (int column = 0; column < m_Columns.GetItemCount(); ++column)
            {
                rectangle<double> const cell{across.L2P(column) - left, down.L2P(row) - top,
                                             across.L2P(column + 1) - left, down.L2P(row + 1) - top};
                if (cell.left > bounds.right || cell.top > bounds.bottom || cell.right < 0 || cell.bottom < 0)
                    continue;
                painter->MoveTo(cell.right, cell.top);
                painter->LineTo(cell.right, cell.bottom);
                painter->LineTo(cell.left, cell.bottom);
                painter->DrawString({cell.left + 4, cell.top, cell.right - 4, cell.bottom},
                                    m_Rows.GetItemCaption(row) + "\n" + m_Columns.GetItemCaption(column),
                                    IPainter::AlignHCenter | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
            }
        }
    }

private:
    CBarSections& m_Columns;
    CBarSections& m_Rows;
};

double Scale(double unscaled)
{
    return static_cast<int>(unscaled * GetSystemScale());
}

}  // namespace

// Sections ------------------------------------------------------------------------------------------------------------------

CBarSections::CBarSections(std::vector<std::string> captions, double width)
    : m_Captions(std::move(captions)), m_Widths(m_Captions.size(), width)
{}

std::string CBarSections::GetItemCaption(int index) const
{
    return Has(index) ? m_Captions[static_cast<std::size_t>(index)] : std::string();
}

double CBarSections::GetStepSize(double index) const
{
    int const section = ToInt(index);
    return Has(section) ? m_Widths[static_cast<std::size_t>(section)] : 0.0;
}

void CBarSections::SetStepSize(double index, double size) const
{
    int const section = ToInt(index);
    if (Has(section))
        m_Widths[static_cast<std::size_t>(section)] = size;
}

void CBarSections::Move(int from, int to)
{
    if (!Has(from) || !Has(to))
        return;
    auto const move = [from, to](auto& values) {
        auto const begin = values.begin();
        if (from < to)
            std::rotate(begin + from, begin + from + 1, begin + to + 1);
        else
            std::rotate(begin + to, begin + from, begin + from + 1);
    };
    move(m_Captions);
    move(m_Widths);
    m_SigChanged();
}

// The page ------------------------------------------------------------------------------------------------------------------

CBarPage::CBarPage()
    : m_Columns({"January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
                 "November", "December"},
                Scale(84)),
      m_Rows({"Apples", "Pears", "Plums", "Cherries", "Quinces", "Grapes", "Figs", "Nuts"}, Scale(80))
{
    m_Columns.SetStepSize(1, Scale(120));
    m_Columns.SetStepSize(4, Scale(50));
}

void CBarPage::Build(CVisualElement* parent)
{
    m_Text = new CPanel(parent, {0, 22}, alBottom);
    m_Text->SetTextFlags(IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);
    auto* const box = new CScrollBox(parent, {0, 0}, alClient);
    m_Box = box;
    m_Left = new CBar(box, {28, 0}, alLeft);
    m_Top = new CBar(box, {0, 26}, alTop);
    m_Cells = new CCells(box, m_Columns, m_Rows);
    m_Left->SetCategoryModel(&m_Rows);
    m_Left->SetStyle(CBar::bsResizeSections | CBar::bsResizeBar);
    m_Left->SetMaxBarSize(ToInt(Scale(120)));
    m_Left->SetMinBarSize(ToInt(Scale(16)));
    m_Top->SetCategoryModel(&m_Columns);
    m_Top->SetStyle(CBar::bsResizeSections);
    for (CBar* const bar : {m_Top, m_Left})
        bar->SetMinSectionSize(ToInt(Scale(20)));
    box->ConnectElement(m_Cells, CScrollBox::ctBoth, true);
    box->ConnectElement(m_Top, CScrollBox::ctHorizontal, false);
    box->ConnectElement(m_Left, CScrollBox::ctVertical, false);
    m_Top->SetSelectedSections({1, 2, 5});
    m_Left->SetSelectedSections({0});

    Connect(*m_Top, "top");
    Connect(*m_Left, "left");
    m_Top->m_SigSectionResizing.connect(this, &CBarPage::ResizeColumn);
    m_Left->m_SigSectionResizing.connect(this, &CBarPage::ResizeRow);
    ShowState(-1);
}

void CBarPage::Connect(CBar& bar, std::string const& name)
{
    Report(bar.m_SigSectionDropped, name + ".dropped");
    Report(bar.m_SigBarResizeAllowed, name + ".bar resize allowed");
    Report(bar.m_SigBarResized, name + ".bar resized");
    Report(bar.m_SigSectionResizeAllowed, name + ".resize allowed");
    Report(bar.m_SigSectionResizing, name + ".resizing");
    Report(bar.m_SigSectionResized, name + ".resized");
    Report(bar.m_SigDragAllowed, name + ".drag allowed");
    Report(bar.m_SigSectionMoved, name + ".moved");
    Report(bar.m_SigPressAllowed, name + ".press allowed");
    Report(bar.m_SigSectionClicked, name + ".clicked");
    bar.m_SigSectionDropped.connect(this, &CBarPage::Dropped);
    bar.m_SigSectionClicked.connect(this, &CBarPage::ShowState);
    bar.m_SigHover.connect(this, &CBarPage::ShowState);
}

void CBarPage::ShowState(int section)
{
    std::string text = "Selected:";
    for (CBar* const bar : {m_Top, m_Left})
    {
        std::vector<int> selected;
        bar->GetSelectedSections(selected);
        for (int const each : selected)
            text += " " + bar->getCaption(each);
    }
    if (section >= 0)
        text += "    Under the pointer: " + std::to_string(section);
    m_Text->SetText(text);
}

void CBarPage::ResizeColumn(int section, double width)
{
    m_Columns.SetStepSize(section, width);
    RefreshBox();
}

void CBarPage::ResizeRow(int section, double width)
{
    m_Rows.SetStepSize(section, width);
    RefreshBox();
}

void CBarPage::Dropped(CBar* bar, int from, int to)
{
    (bar == m_Top ? m_Columns : m_Rows).Move(from, to);
    RefreshBox();
}

void CBarPage::RefreshBox()
{
    static_cast<CScrollBox*>(m_Box)->RefreshScroll();
    m_Cells->Update(utElement);
}

}  // namespace gallery
