#include "vexel/widgets/category_visualisation.h"

#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"
#include "vexel/widgets/detail/system_color.h"

#include <algorithm>

namespace vexel
{

namespace
{

// Pixels at any scale.
int const g_EmptySize = 4;  // of no category
int const g_ItemPitch = 25;
int const g_ItemHeight = 20;
int const g_TextMargins = 6;  // above and below the texts together
int const g_EditorShift = 2;  // above where the texts end
int const g_Indent = 20;
double const g_BoxMargin = 2;
double const g_CaptionIndent = 3;
double const g_DescriptionIndent = 10;
point<double> const g_Radius{7, 9};
rectangle<double> const g_MeasureRect{5, 0, -3, 1000};  // right: from the width
int const g_LargerCaption = 2;
int const g_TextFlags = IPainter::AlignLeft | IPainter::AlignTop;
int const g_LabelFlags = IPainter::AlignRight | IPainter::AlignVCenter;

int CountAncestors(IConfigCategory const& category)
{
    int count = 0;
    for (IConfigCategory const* parent = category.GetParent(); parent; parent = parent->GetParent())
        ++count;
    return count;
}

void SetTools(IPainter& painter, bool highlighted)
{
    auto const color = &detail::GetSystemColor;
    painter.SetTextColor(color(highlighted ? ISysPalette::scHighlightText : ISysPalette::scWindowText));
    if (highlighted)
        painter.SetBrush({color(ISysPalette::scHighlight), brush::bsSolid});
    painter.SetPen({color(highlighted ? ISysPalette::scDarkShadow : ISysPalette::scFace), pen::psSolid, 1});
}

}  // namespace

ICategoryVis::~ICategoryVis() = default;

void CDefCategoryVis::SetCaptionFont(IPainter* painter) const
{
    font value = GetDefaultGUIFont();
    value.style |= font::fsBold;
    value.size += g_LargerCaption;
    painter->SetFont(value);
}

void CDefCategoryVis::SetDescrFont(IPainter* painter) const
{
    painter->SetFont(GetDefaultGUIFont());
}

int CDefCategoryVis::GetCollapsedSize(IPainter* painter, IConfigCategory const* category, int width) const
{
    if (!category)
        return g_EmptySize;
    rectangle<double> rect = g_MeasureRect;
    rect.right += width;
    int const flags = g_TextFlags | IPainter::AlignMeasureOnly;
    SetCaptionFont(painter);
    int const caption = ToInt(painter->DrawString(rect, category->GetCaption(), flags, -1).height);
    SetDescrFont(painter);
    rect.left += g_DescriptionIndent;
    int const description = ToInt(painter->DrawString(rect, category->GetDescription(), flags, -1).height);
    return AddSaturated(AddSaturated(caption, description), g_TextMargins);
}

int CDefCategoryVis::GetExpandedSize(IPainter* painter, IConfigCategory const* category, int width) const
{
    int const collapsed = GetCollapsedSize(painter, category, width);
    return category ? SaturateToInt(std::int64_t{g_ItemPitch} * category->GetItemCount() + collapsed) : collapsed;
}

void CDefCategoryVis::ArrangeEditors(IPainter* painter, IConfigCategory* category, CVisualElement* parent,
                                     rectangle<double> const& area) const
{
    if (!category)
        return;
    double const width = area.right - area.left;
    int const x = ToInt(width * 0.5);
    int y = ToInt(area.top) + GetCollapsedSize(painter, category, ToInt(width)) - g_EditorShift;
    CAliveGuard const alive(parent);
    int const count = category->GetItemCount();
    for (int i = 0; i < count && alive; ++i)
    {
        IConfigItem* const item = category->GetItem(i);
        if (!item)
            continue;
        if (CAlivePtr<CVisualElement> const editor(item->GetEditor()); editor)
        {
            editor->ReParent(parent, true);
            if (editor)
                editor->SetAlignment(alNone);
            if (editor)
                editor->SetVisible(true);
            if (editor)
            {
                rectangle<int> const bounds = editor->GetBounds();
                int const extent = bounds.right > bounds.left ? bounds.right : editor->GetSize().width;
                editor->SetPos({x, y, AddSaturated(x, extent), AddSaturated(y, g_ItemHeight)}, true);
            }
        }
        y = AddSaturated(y, g_ItemPitch);
    }
}

void CDefCategoryVis::Draw(IPainter* painter, IConfigCategory const* category, rectangle<double> const& rect, int width,
                           unsigned int state) const
{
    if (!category)
        return;
    painter->SetBrush({detail::GetSystemColor(ISysPalette::scWindow), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    SetTools(*painter, (state & stHighlighted) != 0);

    double const left = std::min(rect.left, rect.right);
    rectangle<double> box{left + g_BoxMargin, std::min(rect.top, rect.bottom) + g_BoxMargin, left + width - g_BoxMargin,
                          std::max(rect.top, rect.bottom) - g_BoxMargin};
    box.left += g_Indent * static_cast<double>(CountAncestors(*category));
    painter->RoundRect(box.left, box.top, box.right, box.bottom, g_Radius.x, g_Radius.y);

    rectangle<double> text = box;
    text.left += g_CaptionIndent;
    SetCaptionFont(painter);
    text.top += painter->DrawString(text, category->GetCaption(), g_TextFlags, -1).height;
    SetDescrFont(painter);
    text.left += g_DescriptionIndent;
    text.top += painter->DrawString(text, category->GetDescription(), g_TextFlags, -1).height;
    if (!(state & stOpen))
        return;

    rectangle<double> label{left, text.top, ToInt((box.right - box.left) * 0.5) + left - g_CaptionIndent,
                            text.top + g_ItemHeight};
    int const count = category->GetItemCount();
    for (int i = 0; i < count; ++i)
    {
        if (IConfigItem const* const item = category->GetItem(i))
            painter->DrawString(label, item->GetCaption(), g_LabelFlags, -1);
        label.Offset(0, g_ItemPitch);
    }
}

}  // namespace vexel
