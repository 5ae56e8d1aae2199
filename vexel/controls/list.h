#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/headers/items_model.h"

#include <string>

namespace vexel
{

/// Draws an item in a list's place. Not owned by the list; must outlive its use.
class VEXEL_API IItemDrawing
{
public:
    virtual ~IItemDrawing();
    /// `*drawDefault`, true at first: whether the list draws the text. The rectangle is in the list's pixels.
    virtual void DrawItem(IPainter* painter, int item, rectangle<int> const& rect, bool* drawDefault) = 0;
};

/// A short list of lines, drawn as a whole: it takes the height that it needs and scrolls nothing by itself. For popups
/// and scroll containers.
class VEXEL_API CList : public CVisualElement
{
public:
    CList(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    signal_t<CList*, int> m_SigItemClicked;  ///< Pressed and released on one line, which may be one behind the last.

    // What it shows: not owned; a model that dies is forgotten -------------------------------------------------------------
    void SetModel(IItemsModel* model);  ///< The size stays: see RecalcSize. Null: no lines.
    IItemsModel* GetModel() const { return m_Model; }
    void SetItemDrawing(IItemDrawing* drawing) { m_ItemDrawing = drawing; }  ///< Null: none.

    // Look: pixels. Each change of a metric takes the new height, as RecalcSize ----------------------------------------------
    rectangle<int> const& GetOffset() const { return m_Offset; }
    void SetOffset(rectangle<int> const& offset);  ///< Kept free at each edge; 5 at first.
    int GetLineSpacing() const { return m_LineSpacing; }
    void SetLineSpacing(int spacing);
    int GetLineHeight() const { return m_LineHeight; }
    void SetLineHeight(int height);  ///< Until the first line is measured.
    int GetMinLineHeight() const { return m_MinLineHeight; }
    void SetMinLineHeight(int height);
    bool IsHotTrack() const { return m_HotTrack; }
    void SetHotTrack(bool on) { m_HotTrack = on; }  ///< The line under the pointer looks like a link.
    int GetHotItem() const { return m_HotItem; }    ///< Under the pointer; -1: none.

    // Lines: own pixels -------------------------------------------------------------------------------------------------------
    /// The line at this height, which may be one behind the last; above the first it is 0.
    int HitTest(point<int> const& position) const;
    rectangle<int> GetItemRect(int item) const;  ///< With the spacing behind it.

public:  // From CVisualElement
    void AfterSetControl() override;
    void DrawContent(IPainter* painter) override;  ///< Lines that don't fit entirely are left out.
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    void HandleMouseLeave(CVisualElement* next) override;
    std::string HandleAsString() const override;  ///< The lines, with a line feed between.

public:  // Overridable
    virtual void DrawItem(IPainter* painter, int item, rectangle<int> const& rect);
    /// Measures the first line and asks for the height of all. Without lines it does nothing; without a window it is done
    /// as soon as there is one.
    virtual void RecalcSize();
    virtual size<int> GetItemSize(int item) const;  ///< Text and margins at the sides; (0, 0) without a window.
    virtual int GetStartDrawingLine() const { return 0; }
    virtual int GetEndDrawingLine() const;  ///< One behind the last.
    virtual void AfterSetModel(IItemsModel* old);
    virtual void SizeUpdated() {}

protected:
    bool AsksDrawing(IPainter* painter, int item, rectangle<int> const& rect);  ///< Whether the text is to be drawn.
    int GetLinePitch() const { return AddSaturated(m_LineSpacing, m_LineHeight); }

private:
    ISysWindow* GetWindow() const;
    rectangle<int> GetTextArea() const;
    void SetMetric(int& metric, int value);
    void ModelDies(IItemsModel* model);

    IItemsModel* m_Model = nullptr;
    IItemDrawing* m_ItemDrawing = nullptr;
    int m_LineSpacing;
    rectangle<int> m_Offset{5, 5, 5, 5};
    int m_LineHeight;
    int m_MinLineHeight = 0;
    int m_HotItem = -1;
    bool m_HotTrack = false;
    int m_PressedItem = -1;
    bool m_RecalcPending = false;
};

/// Lines with an image each.
class VEXEL_API IPicturedItemsModel : public IItemsModel
{
public:
    virtual int GetItemImageIndex(int index) const = 0;  ///< In the control's image list; -1: none.
};

/// A list with an image before each line.
class VEXEL_API CPicturedList : public CList
{
public:
    using CList::CList;

    void SetModel(IPicturedItemsModel* model) { CList::SetModel(model); }
    int GetImageSpace() const { return m_ImageSpace; }
    void SetImageSpace(int pixels);  ///< Between image and text; 6 at first.

public:                                                                               // From CList
    void DrawItem(IPainter* painter, int item, rectangle<int> const& rect) override;  ///< Nothing without a control.

private:
    int m_ImageSpace = 6;
};

}  // namespace vexel
