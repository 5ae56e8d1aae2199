#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/signals/signal.h"

#include <string>
#include <vector>

namespace vexel
{

class IHeaderItem;

/// What sections of a multi-level header stand in: another section, or the model.
class VEXEL_API IHeaderContainer
{
public:
    IHeaderContainer() = default;
    IHeaderContainer(IHeaderContainer const&) = delete;
    IHeaderContainer& operator=(IHeaderContainer const&) = delete;
    virtual ~IHeaderContainer();

    /// What holds this one: a section, or the model. Null: this is the model.
    virtual IHeaderContainer* GetParent() { return nullptr; }
    virtual IHeaderContainer const* GetParent() const { return nullptr; }
    virtual int GetChildCount() const = 0;
    virtual IHeaderItem* GetChild(int index) = 0;  ///< From 0 to the count; owned by the application.
    virtual IHeaderItem const* GetChild(int index) const = 0;
};

/// The root of a tree of sections, which the application supplies.
///
/// A header keeps what it was told of widths and states: an application that changes these itself, or adds, removes or moves
/// sections, fires m_SigChanged afterwards. What the header asks for by SetWidth and Expand it knows by itself.
class VEXEL_API IHeaderModel : public IHeaderContainer
{
public:
    ~IHeaderModel() override;

    signal_t<> m_SigChanged;  ///< The tree is another; after the change.
    /// The model dies; only this class's part still lives. Headers forget it.
    signal_t<IHeaderModel*> m_SigDestroy;
};

/// One section. May die at any time; no longer in the tree then, it is not asked for anything.
class VEXEL_API IHeaderItem : public IHeaderContainer
{
public:
    enum ExpandState : int
    {
        esNone = 0,  ///< Nothing to expand.
        esExpanded = 1,
        esCollapsed = 2
    };

    IHeaderItem();
    ~IHeaderItem() override;

    IHeaderContainer* GetParent() override = 0;  ///< Never null while it stands in a tree.
    IHeaderContainer const* GetParent() const override = 0;
    int GetChildCount() const override = 0;
    IHeaderItem* GetChild(int index) override = 0;
    IHeaderItem const* GetChild(int index) const override = 0;
    virtual std::string GetText() const = 0;
    virtual int GetWidth() const = 0;                ///< Pixels; of a visual leaf. Below 0 counts as 0.
    virtual void SetWidth(int width) = 0;            ///< Stores it.
    virtual int GetImageIndex() const = 0;           ///< In the control's image list; -1: none.
    virtual int GetTextAlign() const = 0;            ///< Flags of IPainter::DrawString.
    virtual int GetModelIndex() const = 0;           ///< The number of the column in the application's data.
    virtual int GetSortingDirection() const = 0;     ///< 0 none, 1 upwards, others downwards.
    virtual std::string GetDescription() const = 0;  ///< The tooltip; empty: the caption where it doesn't fit.
    /// Expands or collapses it. If other sections change with it, m_SigChanged of the model is to be fired.
    virtual void Expand(bool expand) = 0;
    virtual int GetExpandState() const = 0;  ///< An ExpandState.

    /// How many items have died so far: whoever keeps plain pointers sees by it whether all of these still live.
    static unsigned long GetDestroyCount() { return s_DestroyCount; }
    /// No other item has had it, also none that stood at the same address.
    unsigned long GetSerialNumber() const { return m_SerialNumber; }

private:
    static unsigned long s_DestroyCount;
    static unsigned long s_LastSerialNumber;

    unsigned long const m_SerialNumber;
};

/// A plain pointer to an item, which it doesn't own, that tells another item at the same address from this one.
class CHeaderItemRef
{
public:
    CHeaderItemRef() = default;
    CHeaderItemRef(IHeaderItem* item) : m_Item(item), m_SerialNumber(item ? item->GetSerialNumber() : 0) {}

    operator IHeaderItem*() const { return m_Item; }
    IHeaderItem* operator->() const { return m_Item; }
    /// Whether an item that lives is the one.
    bool Is(IHeaderItem const* item) const { return item == m_Item && item->GetSerialNumber() == m_SerialNumber; }

private:
    IHeaderItem* m_Item = nullptr;
    unsigned long m_SerialNumber = 0;
};

/// Shown as one column: collapsed, or without children.
VEXEL_API bool IsVisualLeaf(IHeaderItem const& item);

// Walks -------------------------------------------------------------------------------------------------------------------

class VEXEL_API IHeaderVisitor
{
public:
    IHeaderVisitor() = default;
    IHeaderVisitor(IHeaderVisitor const&) = delete;
    IHeaderVisitor& operator=(IHeaderVisitor const&) = delete;
    virtual ~IHeaderVisitor();
    virtual bool Visit(IHeaderItem* item, int level) = 0;  ///< True: go into the children.
    virtual bool IsFinished() const = 0;                   ///< True: the whole walk stops.
};

/// Parents before children, these in their order. The top-level items from `firstItem` on, at level 0; none if that is no
/// valid index. Null model: nothing.
VEXEL_API void WalkHeaderModel(IHeaderModel* model, IHeaderVisitor* visitor, int firstItem);
/// The item and what is below it. Null: nothing.
VEXEL_API void WalkHeaderItem(IHeaderItem* item, IHeaderVisitor* visitor, int level);

class VEXEL_API BaseVisitor : public IHeaderVisitor
{
public:
    bool IsFinished() const override { return false; }
};

/// Stops at the first item that is what is looked for.
class VEXEL_API FindVisitor : public IHeaderVisitor
{
public:
    IHeaderItem* GetFound() const { return m_Found; }  ///< Null: none so far.

    bool Visit(IHeaderItem* item, int level) override;
    bool IsFinished() const override { return m_Found != nullptr; }

    virtual bool CheckItem(IHeaderItem* item) const = 0;

private:
    IHeaderItem* m_Found = nullptr;
};

class VEXEL_API FindByModelIndex : public FindVisitor
{
public:
    explicit FindByModelIndex(int index) : m_Index(index) {}
    bool CheckItem(IHeaderItem* item) const override;

private:
    int const m_Index;
};

/// Counts the levels of a tree, also those that are hidden by a collapsed item: so the strip keeps its height.
class VEXEL_API CLevelCounter : public BaseVisitor
{
public:
    int GetLevelCount() const;  ///< At least 1.

    bool Visit(IHeaderItem* item, int level) override;

private:
    int m_MaxLevel = 0;
    int m_CurLevel = 0;  // of the top-level item under way
};

/// Sums the widths of the visual leaves.
class VEXEL_API CWidthCalc : public BaseVisitor
{
public:
    int GetWidth() const { return m_Width; }  ///< At most the largest int.

    bool Visit(IHeaderItem* item, int level) override;

private:
    int m_Width = 0;
};

/// Works out the rectangle of each section that it comes to. A walk must begin at level 0.
class VEXEL_API CPositionProcessor : public BaseVisitor
{
public:
    /// `rect`: the strip, edges included; items begin at its left. `levels`: of the tree; each is equally high.
    /// `stretchLast`: the last child of each parent reaches to the parent's end, the last top-level one to the strip's.
    CPositionProcessor(rectangle<double> const& rect, int levels, bool stretchLast);

    static int GetItemWidth(IHeaderItem* item);  ///< Of its visual leaves together; 0 for null.
    /// Where the next item of that level would begin, with the room left to it.
    rectangle<double> const& GetRunning(int level) const { return m_Levels[static_cast<std::size_t>(level)]; }

    bool Visit(IHeaderItem* item, int level) override;

    /// `rect`: edges included. A visual leaf's reaches to the strip's foot. True: go on into the children.
    virtual bool ProcessSection(IHeaderItem* item, rectangle<double> const& rect) = 0;

protected:
    bool OverlapsBounds(rectangle<double> const& rect) const;  ///< Along x.

private:
    double m_LevelHeight = 0;
    bool const m_StretchLast;
    rectangle<double> const m_Bounds;
    std::vector<rectangle<double>> m_Levels;
};

// Visitors with geometry ------------------------------------------------------------------------------------------------------

/// Draws one section.
class VEXEL_API IHeaderItemDrawing
{
public:
    virtual ~IHeaderItemDrawing();
    virtual void DrawSection(IPainter* painter, IHeaderItem* item, rectangle<double> const& rect) = 0;
};

/// How sections look and where their parts stand. Rectangles include their edges, in the header's pixels. The item is null
/// for the rest of the strip behind the last one.
class VEXEL_API IHeaderItemVisualisation
{
public:
    enum VisualisationState : int
    {
        vsNormal = 0,
        vsHot = 1,
        vsButtonHot = 2,  ///< The pointer is over the expand button.
        vsPressed = 3
    };

    virtual ~IHeaderItemVisualisation();
    virtual int GetVisualisationState(IHeaderItem const* item) const = 0;
    virtual rectangle<double> GetExpandBtnRect(rectangle<double> const& section, IHeaderItem const* item) const = 0;
    virtual rectangle<double> GetSectionContentRect(rectangle<double> const& section,
                                                    IHeaderItem const* item) const = 0;
    virtual void DrawSectionBackground(IPainter* painter, rectangle<double> const& section,
                                       IHeaderItem const* item) = 0;
    virtual void DrawSectionContent(IPainter* painter, rectangle<double> const& content, IHeaderItem const* item) = 0;
    virtual void DrawExpandButton(IPainter* painter, rectangle<double> const& button, IHeaderItem const* item) = 0;
    virtual void DrawSortingMarker(IPainter* painter, bool up, point<double> const& position) = 0;
    /// Whether it has an expand button: 0 none, 1 expanded, 2 collapsed. 0 for null.
    virtual int GetItemState(IHeaderItem const* item) const { return item ? item->GetExpandState() : 0; }
};

/// What lies at a point of a header.
struct HeaderHitTestResult
{
    enum Area : int
    {
        haNothing = 0,
        haSection = 1,
        haExpandButton = 2,
        haGrip = 3  ///< The last pixels of a section, and the first ones behind it.
    };

    int m_Area = haNothing;
    IHeaderItem* m_Item = nullptr;
    rectangle<int> m_Rect;  ///< The section's.
};

/// Has all sections drawn that overlap the strip.
class VEXEL_API CDrawer : public CPositionProcessor
{
public:
    CDrawer(rectangle<double> const& rect, int levels, bool stretchLast, IPainter* painter, IHeaderItemDrawing* drawing)
        : CPositionProcessor(rect, levels, stretchLast), m_Painter(painter), m_Drawing(drawing)
    {}
    bool ProcessSection(IHeaderItem* item, rectangle<double> const& rect) override;

private:
    IPainter* const m_Painter;
    IHeaderItemDrawing* const m_Drawing;
};

/// Finds the first section at a point.
class VEXEL_API CHitTester : public CPositionProcessor
{
public:
    static constexpr int s_GripShift =
        4;  ///< Pixels at any scale: so far a grip reaches over its section's right edge.

    /// `x`: less s_GripShift where that isn't below 0. `result`: filled in when the section is found.
    CHitTester(rectangle<double> const& rect, int levels, bool stretchLast, HeaderHitTestResult* result, double x,
               double y, IHeaderItemVisualisation* visualisation)
        : CPositionProcessor(rect, levels, stretchLast), m_Result(result), m_X(x), m_Y(y),
          m_Visualisation(visualisation)
    {}
    bool IsFinished() const override { return m_Found; }
    bool ProcessSection(IHeaderItem* item, rectangle<double> const& rect) override;

private:
    HeaderHitTestResult* const m_Result;
    double const m_X;
    double const m_Y;
    bool m_Found = false;
    IHeaderItemVisualisation* const m_Visualisation;
};

/// Finds the rectangle of one section.
class VEXEL_API CRectCalculator : public CPositionProcessor
{
public:
    CRectCalculator(rectangle<double> const& rect, int levels, bool stretchLast, IHeaderItem const* item)
        : CPositionProcessor(rect, levels, stretchLast), m_Item(item)
    {}
    rectangle<double> const& GetRect() const { return m_Rect; }  ///< All zero while it isn't found.

    bool IsFinished() const override { return m_Found; }
    bool ProcessSection(IHeaderItem* item, rectangle<double> const& rect) override;

private:
    IHeaderItem const* const m_Item;
    rectangle<double> m_Rect;
    bool m_Found = false;
};

}  // namespace vexel
