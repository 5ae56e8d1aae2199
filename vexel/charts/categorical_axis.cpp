#include "vexel/charts/categorical_axis.h"

#include "vexel/core/clip_holder.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace vexel
{

namespace
{

constexpr double s_LabelAcross = 8.0;     // pixels at any scale, as the next one
constexpr int s_LabelReserve = 16;        // beyond the element
constexpr std::size_t s_MaxNumber = 255;  // bytes of a category's number
constexpr int s_MaxCategories = 100000;   // of one drawing: more are without end

}  // namespace

CCategoricalAxis::CCategoricalAxis(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CAxis(parent, extent, alignment)
{}

CCategoricalAxis::~CCategoricalAxis() = default;

void CCategoricalAxis::SetCategoryModel(IItemsModel* model)
{
    if (model == m_CategoryModel)
        return;
    if (m_CategoryModel)
    {
        m_CategoryModel->m_SigChanged.disconnect(this, &CCategoricalAxis::CategoriesChanged);
        m_CategoryModel->m_SigDestroy.disconnect(this, &CCategoricalAxis::CategoryModelDies);
    }
    m_CategoryModel = model;
    if (m_CategoryModel)
    {
        m_CategoryModel->m_SigChanged.connect(this, &CCategoricalAxis::CategoriesChanged);
        m_CategoryModel->m_SigDestroy.connect(this, &CCategoricalAxis::CategoryModelDies);
    }
    CategoriesChanged();
}

void CCategoricalAxis::CategoriesChanged()
{
    OnChange(this, utElement);
}

void CCategoricalAxis::CategoryModelDies(IItemsModel*)
{
    m_CategoryModel = nullptr;
    CategoriesChanged();
}

std::string CCategoricalAxis::getCaption(double value) const
{
    if (m_CategoryModel)
        return m_CategoryModel->GetItemCaption(ToInt(value));
    std::array<char, s_MaxNumber> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%g", value);
    return buffer.data();
}

void CCategoricalAxis::DrawContent(IPainter* painter)
{
    rectangle<double> const whole = GetDrawRect(painter);
    if (whole.IsEmpty())
        return;
    CClipHolder const clip(painter, whole);
    DrawBackground(painter);
    SetCoordSystem(painter);
    IScrollModel* const model = GetScrollModel();
    if (!model)
        return;

    rectangle<double> const rect = GetAxisRect(painter);
    font const before = painter->GetFont();
    painter->SetFont(TurnFont(before));
    double const place = std::trunc(std::ceil(model->GetStart()));
    double category = std::trunc(std::ceil(model->GetStart()) + 0.5);
    point<double> position = MakePoint(place, GetAxisOffset());
    for (int rest = s_MaxCategories; rest > 0 && rect.Contains(position.x, position.y); --rest)
    {
        if (!(category < std::max(model->GetFrom(), model->GetTo())))
            break;
        point<double> end = position;
        if (!m_CategoryModel || !getCaption(category).empty())
            DrawLine(painter, &end, true);
        DrawLabel(painter, end, category, 1.0);
        IncAlong(&position, model->GetStepSize(category));
        category += 1;
    }
    painter->SetFont(before);
}

void CCategoricalAxis::DrawLabel(IPainter* painter, point<double> const& position, double value, double width)
{
    PrepareAttr(position, value);
    m_LastLabelRect = getCategoryLabelRect(painter, position, value, width);
    drawOneCategoryLabel(painter, m_LastLabelRect, getCaption(value));
}

rectangle<double> CCategoricalAxis::getCategoryLabelRect(IPainter* painter, point<double> const& position, double value,
                                                         double width)
{
    double const along = GetAlong(position.x, position.y);
    size<double> const extent = painter->GetTextSize(getCaption(value), nullptr);
    double const half = std::abs(GetAlong(extent.width, extent.height)) / 2;
    // Width and height exchanged: so that the rectangle is deep enough for any text.
    size<int> const own = GetSize();
    double const across = GetAcross(own.height, own.width);
    rectangle<double> rect = MakeRect(along - half, s_LabelAcross, along + half, across + s_LabelReserve);
    updateCategoryLabelRect(rect, value, width);
    return rect;
}

void CCategoricalAxis::drawOneCategoryLabel(IPainter* painter, rectangle<double> const& rect, std::string const& text,
                                            ...)
{
    int const align = ConvTextAlign(IPainter::AlignHCenter | IPainter::AlignTop);
    painter->DrawString(rect, text.c_str(), align | IPainter::AlignSingleLine | IPainter::AlignFitText, -1);
}

}  // namespace vexel
