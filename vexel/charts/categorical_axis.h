#pragma once

#include "vexel/charts/axis.h"
#include "vexel/headers/items_model.h"

#include <string>

namespace vexel
{

/// An axis of whole categories: a tick and a label for each whole number of the model's range, at its place. Labels are
/// captions, or the numbers themselves without a category model. There are no minor ticks, and GetMajorTicks stays
/// empty.
class VEXEL_API CCategoricalAxis : public CAxis
{
public:
    CCategoricalAxis(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CCategoricalAxis() override;

    /// Gives the captions, and is asked for all whole numbers that the scroll model's range has. Not owned; one that dies
    /// is forgotten. Null, as at first: categories are shown by number. Repaints on a change, also of the model's content.
    void SetCategoryModel(IItemsModel* model);
    IItemsModel* GetCategoryModel() const { return m_CategoryModel; }

    // Parts of its work -----------------------------------------------------------------------------------------------------
    using CAxis::DrawLabel;
    /// Draws the label of a category; `position`: the tick's end. `width`: of the category, in logical units.
    void DrawLabel(IPainter* painter, point<double> const& position, double value, double width);
    /// As wide as the caption, with its middle at the position.
    rectangle<double> getCategoryLabelRect(IPainter* painter, point<double> const& position, double value,
                                           double width);
    std::string getCaption(double value) const;
    rectangle<double> const& GetLastLabelRect() const { return m_LastLabelRect; }  ///< Of the label drawn last.

public:  // From CVisualElement
    void DrawContent(IPainter* painter) override;

public:  // Overridable
    /// May move the label's rectangle.
    virtual void updateCategoryLabelRect(rectangle<double>& /*rect*/, double /*value*/, double /*width*/) {}
    /// Further arguments are for subclasses; none are passed here.
    virtual void drawOneCategoryLabel(IPainter* painter, rectangle<double> const& rect, std::string const& text, ...);

private:
    void CategoriesChanged();
    void CategoryModelDies(IItemsModel* model);

    IItemsModel* m_CategoryModel = nullptr;
    rectangle<double> m_LastLabelRect;
};

}  // namespace vexel
