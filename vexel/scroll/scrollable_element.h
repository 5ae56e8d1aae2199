#pragma once

#include "vexel/core/element_ptr.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/sys_window.h"
#include "vexel/scroll/scroll_model.h"
#include "vexel/tasks/repeatable_operation.h"

namespace vexel
{

/// Which way an automatic scroll goes. Any value but sdForward moves backward.
enum ScrollDirection : int
{
    sdNone = 0,
    sdForward = 1,  ///< Towards GetTo().
    sdBackward = 2  ///< Towards GetFrom().
};

/// An element that knows a scroll model for each axis and the pane that these measure. It owns no bars: see CScrollBox.
/// Models are not owned and must outlive their use. The pane is not owned either; one that dies is forgotten.
class VEXEL_API CScrollableElement : public CVisualElement,
                                     private CRepeatableOperation  // the automatic scroll, every 100 ms
{
public:
    /// The automatic scroll of one axis.
    class VEXEL_API ScrollCondition
    {
    public:
        /// `checkMouse`: it goes on only while the pointer stays where it is now.
        void Init(ScrollDirection direction, bool checkMouse);
        void Clear();                   ///< The pointer's position is kept.
        bool ScrollIsPossible() const;  ///< The pointer may stay 2 pixels off on each axis.
        ScrollDirection GetDirection() const { return m_Direction; }

    private:
        ScrollDirection m_Direction = sdNone;
        point<int> m_MousePos;  // screen pixels
        bool m_CheckMouse = false;
    };

    CScrollableElement(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CScrollableElement() override;

    // Models and pane: each is stored and nothing else -------------------------------------------------------------------
    virtual void SetCentralPane(CVisualElement* pane);
    virtual void SetVertScroll(IScrollModel* model);
    virtual void SetHorzScroll(IScrollModel* model);
    CVisualElement* GetCentralPane() const { return m_CentralPane.get(); }
    IScrollModel* GetVertScroll() const { return m_VertScroll; }
    IScrollModel* GetHorzScroll() const { return m_HorzScroll; }
    rectangle<int> GetCentralRect() const;  ///< The pane's content, in control pixels; all zero without a pane.

    // Automatic scrolling: 8 logical units every 100 ms ------------------------------------------------------------------
    /// Takes effect only for a `type` with the bit of the horizontal axis, and while nothing is armed; in any case the
    /// timer starts. For both axes at once the directions stay as they were. `checkMouse`: a moved pointer ends it.
    void StartScrolling(ISysWindow::ScrollType type, ScrollDirection direction, bool checkMouse);
    void StopScrolling(ISysWindow::ScrollType type);  ///< Nothing, unless one of these axes is armed.
    bool IsScrolling() const { return m_ScrollType != 0; }
    /// One step on one axis. It ends at GetTo() or GetFrom(), compared as they are: reversed models are not catered for.
    void DoScroll(ISysWindow::ScrollType type, ScrollDirection direction);

    // Values of a model with unequal steps --------------------------------------------------------------------------------
    /// Whole steps from the low end to `value` are replaced by their sizes; the fraction is added as it is.
    double AddStepsInfo(double value, IScrollModel* model) const;
    double DelStepsInfo(double value, IScrollModel* model) const;  ///< The way back, from the present position on.

    // From CVisualElement ------------------------------------------------------------------------------------------------
    /// Whether a scroll concerns an element that lies along this edge.
    bool ScrollContent(int dx, int dy) override;

protected:  // From CRepeatableOperation
    void ProcessRepeatOperation() override;

private:
    ScrollCondition* GetCondition(int type);
    void Disarm(int type);

    IScrollModel* m_VertScroll = nullptr;
    IScrollModel* m_HorzScroll = nullptr;
    CElementPtr<> m_CentralPane;
    int m_ScrollType = 0;  // the armed axes, bits of ISysWindow::ScrollType
    ScrollCondition m_VertCondition;
    ScrollCondition m_HorzCondition;
};

}  // namespace vexel
