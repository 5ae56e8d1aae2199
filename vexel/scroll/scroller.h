#pragma once

#include "vexel/controls/arrow_button.h"
#include "vexel/core/element_ptr.h"

namespace vexel
{

/// A panel whose content may be taller than the panel itself. Where it is, two arrow buttons appear above and below the
/// content and push it by a fixed step; held, they go on. No scroll bars, no model, no horizontal axis: the content is as
/// wide as the panel and as high as it asks for (SetSize).
class VEXEL_API CScroller : public CVisualElement
{
public:
    /// The view on the content. Layouts and repaints asked for below end here.
    class VEXEL_API CCentralPart : public CVisualElement
    {
    public:
        CCentralPart(CVisualElement* parent, size<int> const& extent, Alignment alignment);

        int GetOffset() const { return m_Offset; }  ///< The content's top, own pixels; never above 0.
        int GetStep() const { return m_Step; }
        void SetStep(int pixels) { m_Step = pixels; }  ///< Not scaled; 20 at first.

        // Connected to the buttons' clicks
        void OnTopButtonClick(CButton* button);
        void OnBottomButtonClick(CButton* button);

        // From CVisualElement
        /// Shows or hides the buttons and keeps the content's end at the view's foot or below.
        void SetPos(rectangle<int> const& rect, bool force) override;
        void OnDraw(IPainter* painter) override;  ///< The content is cut to the view.
        void DrawContent(IPainter* painter) override;
        void ProcessRearrange(CVisualElement** element) override { *element = this; }
        bool BeforeProcessChange(CVisualElement* element, UpdateType type) override;
        void ProcessChange(CVisualElement** element) override { *element = this; }

    private:
        friend class CScroller;

        CVisualElement* GetScrolled() const;
        void Move(int distance);

        CVisualElement* m_TopButton = nullptr;
        CVisualElement* m_BottomButton = nullptr;
        CElementPtr<> m_Scrolled;
        int m_Step = 20;
        int m_Offset = 0;
    };

    CScroller(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    /// What the panel shows from now on; it becomes a child of the central part. The former one is left without a parent.
    void SetScrolled(CVisualElement* element);
    /// Null also for one that has another parent now.
    CVisualElement* GetScrolled() const { return m_CentralPart.GetScrolled(); }
    CArrowButton& GetTopButton() { return m_TopButton; }
    CArrowButton& GetBottomButton() { return m_BottomButton; }
    CCentralPart& GetCentralPart() { return m_CentralPart; }

    void SetPos(rectangle<int> const& rect, bool force) override;
    bool IsFullRepainted() const override;  ///< As the content; false without one.

private:
    CArrowButton m_TopButton;
    CArrowButton m_BottomButton;
    CCentralPart m_CentralPart;
};

}  // namespace vexel
