#pragma once

#include "vexel/layout/element_layout.h"

namespace vexel
{

/// The items of a flow. All lengths in pixels, or whatever unit the items have.
class VEXEL_API IFlowLayoutItems
{
public:
    virtual ~IFlowLayoutItems();

    virtual int GetItemCount() = 0;
    virtual size<int> GetItemSize(int index) = 0;
    /// Takes the item's place. The right edge may be changed; the next item of the line follows it.
    virtual void SetItemRect(int index, rectangle<int>& rect) = 0;
    virtual int GetItemGap(int index) = 0;  ///< Room to the right of the item.
    virtual int GetLineGap() = 0;           ///< Room between two lines.
    virtual int GetTopMargin() = 0;         ///< y of the first line.
    virtual int GetLeftMargin() = 0;        ///< x at which each line starts.
};

/// Lines items up like the words of a paragraph. The width is the limit at which lines break, the height is worked out.
///
/// The last item counts for less than the others: it doesn't raise its line, so that a last item which stands alone and
/// fits has a rectangle without height; one that was broken to a line of its own has its full height, which the layout's
/// height does not include.
class VEXEL_API CFlowLayout : public IElementLayout
{
public:
    CFlowLayout() = default;

    void SetItems(IFlowLayoutItems* items) { m_Items = items; }  ///< Not owned; null: nothing to place.
    void SetWidth(int width) { m_Size.width = width; }           ///< Takes effect with the next Update.

    void Update() override;
    /// The height: the top of the line after the last one that was placed, plus 1.
    size<int> GetSize() const override { return m_Size; }

private:
    size<int> m_Size;
    IFlowLayoutItems* m_Items = nullptr;
};

}  // namespace vexel
