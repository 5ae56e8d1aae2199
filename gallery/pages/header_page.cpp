#include "gallery/pages/header_page.h"

#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/core/dpi.h"

namespace gallery
{

namespace
{

constexpr int s_Checked = 4;  // the column with a switch

void Fill(CGroupModel& groups)
{
    int number = 0;
    CGroup& person = groups.Add("Person", 110);
    person.m_Image = 0;
    person.m_Description = "Who it is";
    CGroup& name = person.Add("Name");
    CGroup& given = name.Add("Given");
    given.m_Sorting = 1;
    name.Add("Family");
    person.Add("Born", 80).m_Align = IPainter::AlignRight | IPainter::AlignVCenter;
    CGroup& address = groups.Add("Address", 120);
    address.m_Image = 1;
    address.m_Align = IPainter::AlignHCenter | IPainter::AlignVCenter;
    address.Add("Street").m_Description = "With the number of the house";
    address.Add("Town", 90);
    CGroup& reach = groups.Add("Reached by", 100);
    reach.m_Expanded = false;
    reach.Add("Telephone");
    reach.Add("Post");
    CGroup& notes = groups.Add("Notes", 130);
    notes.m_Image = 2;
    for (CGroup* leaf : {&given, name.m_Children[1].get(), person.m_Children[1].get(), address.m_Children[0].get(),
                         address.m_Children[1].get(), reach.m_Children[0].get(), reach.m_Children[1].get(), &notes})
        leaf->m_Index = number++;
}

// Sections in a colour of their own, with round marks in place of buttons.
class CPlainLook : public IHeaderItemVisualisation
{
public:
    explicit CPlainLook(CHeader* header) : m_Header(header) {}

    int GetVisualisationState(IHeaderItem const* item) const override { return m_Header->GetVisualisationState(item); }
    rectangle<double> GetExpandBtnRect(rectangle<double> const& section, IHeaderItem const* item) const override
    {
        return m_Header->GetExpandBtnRect(section, item);
    }
    rectangle<double> GetSectionContentRect(rectangle<double> const& section, IHeaderItem const* item) const override
    {
        return m_Header->GetSectionContentRect(section, item);
    }
    void DrawSectionBackground(IPainter* painter, rectangle<double> const& section, IHeaderItem const* item) override
    {
        static int const fills[] = {26, 27, 24, 25};
        brush const before = painter->GetBrush();
        pen const line = painter->GetPen();
        painter->SetBrush({color_table[fills[GetVisualisationState(item)]], brush::bsSolid});
        painter->SetPen({color_table[9], pen::psSolid, 1});
        painter->Rectangle(section.left, section.top, section.right, section.bottom);
        painter->SetPen(line);
        painter->SetBrush(before);
    }
    void DrawSectionContent(IPainter* painter, rectangle<double> const& content, IHeaderItem const* item) override
    {
        painter->SetTextColor(color_table[15]);
        m_Header->DrawSectionContent(painter, content, item);
    }
    void DrawExpandButton(IPainter* painter, rectangle<double> const& button, IHeaderItem const* item) override
    {
        if (button.IsEmpty())
            return;
        bool const expanded = GetItemState(item) == IHeaderItem::esExpanded;
        double const radius = button.Width();
        brush const before = painter->GetBrush();
        pen const line = painter->GetPen();
        painter->SetPen({color_table[15], pen::psSolid, 1});
        painter->SetBrush({color_table[expanded ? 9 : 15], brush::bsSolid});
        painter->RoundRect(button.left, button.top, button.right, button.bottom, radius, radius);
        painter->SetPen(line);
        painter->SetBrush(before);
    }
    void DrawSortingMarker(IPainter* painter, bool up, point<double> const& position) override
    {
        m_Header->DrawSortingMarker(painter, up, position);
    }

private:
    CHeader* const m_Header;
};

// A header that looks so.
class CPlainHeader : public CHeader
{
public:
    CPlainHeader(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CHeader(parent, extent, alignment), m_Look(this)
    {
        SetItemVisualisation(&m_Look);
    }

private:
    CPlainLook m_Look;
};

}  // namespace

CHeaderPage::CHeaderPage() = default;
CHeaderPage::~CHeaderPage() = default;

CHeader* CHeaderPage::Add(CVisualElement* parent, std::string const& title, std::string const& name)
{
    new CLabel(parent, {0, 26}, alTop, title);
    SStrip& strip = *m_Strips.emplace_back(std::make_unique<SStrip>());
    Fill(strip.groups);
    bool const plain = name == "own";
    CHeader* const header = plain ? new CPlainHeader(parent, {0, 60}, alTop) : new CHeader(parent, {0, 60}, alTop);
    strip.scroll.SetViewModel(header);
    header->SetHorzScroll(&strip.scroll);
    header->SetModel(&strip.groups);
    header->SetCanHaveFocus(true);
    header->RecalculateHeight();
    strip.groups.Serve(header);

    Report(header->m_SigClicked, name + ".clicked");
    Report(header->m_SigResized, name + ".resized");
    Report(header->m_SigExpanded, name + ".expanded");
    Report(header->m_SigDragOver, name + ".dragOver");
    Report(header->m_SigDropped, name + ".dropped");
    Report(header->m_SigGripDoubleClicked, name + ".grip double-clicked");
    new CPanel(parent, {0, 10}, alTop);
    return header;
}

void CHeaderPage::Build(CVisualElement* parent)
{
    CHeader* const header = Add(parent, "Three levels; a switch stands in the section Town", "header");
    auto* const toggle = new CToggle(header, {28, 20}, alNone, "");
    toggle->SetSize({28, 20}, true);
    toggle->SetBkColor(_color::FromRgb(249, 249, 249));  // as the section
    toggle->SetOn(true);
    Report(toggle->m_SigToggled, "switch");
    header->SetVisualElement(header->GetHeaderItem(header->GetVisibleIndex(s_Checked)), toggle, alLeft);
    Add(parent, "The platform's look", "native")->SetNativeDrawing(true);
    Add(parent, "A look of its own", "own");
    Add(parent, "Disabled", "disabled")->SetEnabled(false);
    Add(parent, "The rest behind the last column is an empty section", "short")->SetStretchLastItem(false);
}

}  // namespace gallery
