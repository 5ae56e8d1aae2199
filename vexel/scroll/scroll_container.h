#pragma once

#include "vexel/core/element_list.h"
#include "vexel/scroll/scroll_box.h"

namespace vexel
{

/// A view on one element that is larger than itself: any tree, scrolled by pixels. Its size is what it asks for (SetSize).
/// A notch of the wheel goes one line of text. A descendant that gets the focus is brought into view.
class VEXEL_API CScrollContainer : public CScrollBox
{
public:
    /// How the element's extent follows the view's.
    enum FitMode : int
    {
        fmHeight = 1,
        fmWidth = 2,
        fmNone = 3
    };

    /// The view: the scroll model of both axes, in pixels. Collects the repaints of what lies below, and cuts these to itself.
    class VEXEL_API CCentralPart : public CScrollableElement,
                                   public IHorzPhysicalScrollModel,
                                   public IVertPhysicalScrollModel
    {
    public:
        CCentralPart(CVisualElement* parent, size<int> const& extent, Alignment alignment);

        CVisualElement* GetScrolled() const;          ///< Null also for one that has another parent now.
        void SetScrolled(CVisualElement* element);    ///< Called by the container.
        void SetSteps(int horizontal, int vertical);  ///< Line steps in pixels; 10 at first. 0: no range on that axis.
        FitMode GetFitMode() const { return m_FitMode; }
        void SetFitMode(FitMode mode);  ///< fmNone at first. Lays out.
        /// True: only what the element leaves free is filled. False at first.
        void SetFillAroundChild(bool around);

        /// Scrolls the shortest way that makes all of a descendant show; one larger than the view on both axes stays.
        void ChildToParentView(CVisualElement* child);
        /// A press beside the element's own: the focus goes to the first that can have it. Connected to m_SigButtonDown.
        void HandlePaneButtonDown(CVisualElement* element, int x, int y, int keys, MouseButton button);

    public:  // From the scroll models: pixels from 0 on; one more than the element's extent
        double GetHorzFrom() const override { return 0.0; }
        double GetHorzTo() const override;
        void SetHorzStart(double value) override;  ///< Cut to the range, and painted at once.
        double GetHorzStart() const override;
        int GetHorzStepInPixels() const override { return m_HorzStep; }
        double GetVertFrom() const override { return 0.0; }
        double GetVertTo() const override;
        void SetVertStart(double value) override;
        double GetVertStart() const override;
        int GetVertStepInPixels() const override { return m_VertStep; }
        void Update() override {}  ///< Of either model: the container refreshes the bars.
        using CVisualElement::Update;

    public:  // From CScrollableElement
        bool ScrollContent(int dx, int dy) override;

    public:  // From CVisualElement
        void SetPos(rectangle<int> const& rect, bool force) override;
        void OnDraw(IPainter* painter) override;
        void DrawContent(IPainter* painter) override;
        bool BeforeProcessChange(CVisualElement* element, UpdateType type) override;
        void ProcessChange(CVisualElement** element) override;
        void HandleChildFocusChanged(CVisualElement* element, CVisualElement* other, bool got) override;

    private:
        void MoveChild(rectangle<int> const& rect);
        void FitChild(CVisualElement& child);
        bool DrawsOnlyChanges(IPainter* painter) const;

        CVisualElement* m_Scrolled = nullptr;
        int m_HorzStep = 10;
        int m_VertStep = 10;
        CElementList m_Changed;         // what has asked for a repaint
        unsigned long m_ChangedAt = 0;  // how many elements had died by then
        bool m_FullRepaint = true;
        bool m_FillAroundChild = false;
        FitMode m_FitMode = fmNone;
        // The last fit: whose (only compared), the extent that it was given, and what it asked for thereafter.
        CVisualElement const* m_FittedChild = nullptr;
        int m_GivenExtent = 0;
        int m_WantedExtent = 0;
    };

    CScrollContainer(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CScrollContainer() override;

    /// The element that is shown from now on, from its left-top; it becomes a child of the central part. The former one is
    /// left without a parent. Null: none.
    void SetScrolled(CVisualElement* element);
    CVisualElement* GetScrolled() const { return m_Scrolled; }
    CCentralPart& GetCentralPart() { return m_CentralPart; }

    void GetWheelStepSize(CVisualElement* element, int& step);  ///< Connected to m_SigGetWheelStep.
    void OnScrolledResized(CVisualElement* element);            ///< Connected to the element's m_SigSize.

private:
    void LetGo();
    void ScrolledDies(CVisualElement* element);

    CCentralPart m_CentralPart;
    CVisualElement* m_Scrolled = nullptr;
    rectangle<int> m_ScrolledPos;  // when it was last heard of
};

}  // namespace vexel
