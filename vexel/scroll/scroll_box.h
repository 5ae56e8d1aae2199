#pragma once

#include "vexel/layout/container.h"
#include "vexel/scroll/scroll_corner.h"
#include "vexel/scroll/scroll_element.h"
#include "vexel/scroll/scrollable_element.h"

#include <memory>
#include <vector>

namespace vexel
{

/// Puts native scroll bars around a scrollable pane: a vertical one at the right edge, a horizontal one at the bottom,
/// each shown where its model's range is longer than the pane. The box reaches the models through ConnectElement, and
/// hands out wrapped models: whoever moves one of these moves the pixels and the bar along.
///
/// The pane is docked by the application, as a rule as a client child. What scrolls along with it, a header, may stand
/// anywhere in the box. Models are not owned: they outlive the box, or belong to the element that was connected; the box
/// forgets both when that dies, and takes its own models back when it dies itself.
class VEXEL_API CScrollBox : public CScrollableElement
{
public:
    enum ConnectionType : int  ///< Bits.
    {
        ctHorizontal = 1,
        ctVertical = 2,
        ctBoth = 3
    };

    /// Holds a bar's host at its edge. Lays its children out with every SetPos; draws nothing.
    class VEXEL_API CScrollContainer : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        void SetPos(rectangle<int> const& rect, bool) override { CVisualElement::SetPos(rect, true); }
        void DrawContent(IPainter*) override {}
    };

    /// A model of the box in wraps. Everything goes on to it, but what changes it goes through the box, so that pane and
    /// bar follow. Step sizes can't be changed through it. Without a model inside it is an empty range of pixels.
    class VEXEL_API CInternalScrollModel : public IScrollModel
    {
    public:
        explicit CInternalScrollModel(CScrollBox* owner) : m_Owner(owner) {}

        IScrollModel* GetWrapped() const { return m_Wrapped; }
        void SetWrapped(IScrollModel* model) { m_Wrapped = model; }

        double GetFrom() const override { return m_Wrapped ? m_Wrapped->GetFrom() : 0.0; }
        double GetTo() const override { return m_Wrapped ? m_Wrapped->GetTo() : 0.0; }
        double GetStart() const override { return m_Wrapped ? m_Wrapped->GetStart() : 0.0; }
        int GetMinScrollDistance() const override { return m_Wrapped ? m_Wrapped->GetMinScrollDistance() : 1; }
        bool IsFixedStepSize() const override { return !m_Wrapped || m_Wrapped->IsFixedStepSize(); }
        double GetStepSize(double index) const override { return m_Wrapped ? m_Wrapped->GetStepSize(index) : 1.0; }
        void SetStepSize(double index, double size) const override;
        void SetMeasure(std::pair<double, int> measure) override;
        std::pair<double, int> GetMeasure() const override;
        bool IsInseparableStep() const override { return m_Wrapped && m_Wrapped->IsInseparableStep(); }
        void Update() override;

    protected:
        CScrollBox* const m_Owner;

    private:
        IScrollModel* m_Wrapped = nullptr;
    };

    class VEXEL_API CVertInternalScrollModel : public CInternalScrollModel
    {
    public:
        using CInternalScrollModel::CInternalScrollModel;
        void SetStart(double value) override;
    };

    class VEXEL_API CHorzInternalScrollModel : public CInternalScrollModel
    {
    public:
        using CInternalScrollModel::CInternalScrollModel;
        void SetStart(double value) override;
    };

    CScrollBox(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CScrollBox() override;

    signal_t<CVisualElement*, int&> m_SigGetWheelStep;  ///< How far a notch goes, in the model's units; 1 at first.

    // What is scrolled -------------------------------------------------------------------------------------------------
    /// `connect` true: the element becomes the pane, its models of these axes become the box's, and it gets the wrapped
    /// ones in their place. False: the element scrolls along with the pane, by the wrapped models. Null is ignored.
    void ConnectElement(CScrollableElement* element, ConnectionType type, bool connect);
    IScrollModel* GetWrappedVertScroll() const { return const_cast<CVertInternalScrollModel*>(&m_VertWrapper); }
    IScrollModel* GetWrappedHorzScroll() const { return const_cast<CHorzInternalScrollModel*>(&m_HorzWrapper); }
    /// To be called when a range, a scale or a position has changed on another way than by the wrapped models.
    void RefreshScroll();

    // Moves: logical positions. The pane's pixels move along; the bars don't follow (see RefreshScroll) ------------------
    void VertScroll(CScrollEvent::ScrollAction action, double value);
    void HorzScroll(CScrollEvent::ScrollAction action, double value);
    /// Moves the model. The distance in pixels, as it must be drawn; 0 without a model, within another move, or if
    /// distances are not wanted.
    int ScrollImp(IScrollModel* model, double value);
    void SetReportPixels(bool report) { m_ReportPixels = report; }  ///< True at first. False: a move shifts no pixels.
    void SetUpdateAtOnce(bool atOnce) { m_UpdateAtOnce = atOnce; }  ///< Each move is painted at once. False at first.

    // Bars -------------------------------------------------------------------------------------------------------------
    void CreateScrollbars(IControl* control);  ///< In place of the present ones. Null control: none.
    void ReleaseScrollbars();
    CScrollElement& GetVertElement() { return m_VertElement; }
    CScrollElement& GetHorzElement() { return m_HorzElement; }
    IScrollBar* GetVertBar() const { return m_VertBar; }  ///< Null without a control.
    IScrollBar* GetHorzBar() const { return m_HorzBar; }
    void SetCornerAlways(bool always);  ///< The corner shows also where not both bars do. False at first.

    // From CScrollableElement --------------------------------------------------------------------------------------------
    void SetCentralPane(CVisualElement* pane) override;  ///< Null is ignored.
    void SetVertScroll(IScrollModel* model) override;
    void SetHorzScroll(IScrollModel* model) override;
    bool ScrollContent(int, int) override { return false; }

    // From CVisualElement ------------------------------------------------------------------------------------------------
    void SetPos(rectangle<int> const& rect, bool force) override;
    void SetEnabled(bool enabled) override;  ///< The bars too.
    bool IsFullRepainted() const override { return false; }
    void DrawContent(IPainter*) override {}
    void ProcessSetControl(IControl* control) override;
    void AfterSetControl() override;
    /// Scrolls the axis that has a bar, the vertical one first. False: none has, and the event goes on.
    bool HandleWheel(int x, int y, int keys, MouseButton button, int delta) override;
    void HandleControlDestroy() override;

protected:
    /// The pane has moved what stands in it, with its pixels, when its model has: of a scroll it hears alone.
    void SetPaneMovesItself(bool itself) { m_PaneMovesItself = itself; }

private:
    // The element whose own model is scrolled on an axis. The model goes with it.
    class CModelOwner : public subscriber_base_t
    {
    public:
        CModelOwner(CScrollBox* box, void (CScrollBox::*setModel)(IScrollModel*)) : m_Box(box), m_SetModel(setModel) {}

        CScrollableElement* get() const { return m_Element; }
        void Watch(CScrollableElement* element);

    private:
        void Dies(CVisualElement*);

        CScrollBox* const m_Box;
        void (CScrollBox::*const m_SetModel)(IScrollModel*);
        CScrollableElement* m_Element = nullptr;
    };

    class CSnap;

    bool JudgeVert(int more);
    bool JudgeHorz(int more);
    void ScrollAll(int dx, int dy);
    void UpdateAtOnce();
    void KeepConnected(CScrollableElement* element);
    void TakeWrappersBack();

    CScrollElement m_VertElement;
    CScrollElement m_HorzElement;
    CScrollContainer m_VertHolder;
    CScrollContainer m_HorzHolder;
    CScrollCorner m_Corner;
    CContainer m_VertBarHost;
    CContainer m_HorzBarHost;
    IScrollBar* m_VertBar = nullptr;  // owned by its host
    IScrollBar* m_HorzBar = nullptr;
    CVertInternalScrollModel m_VertWrapper{this};
    CHorzInternalScrollModel m_HorzWrapper{this};
    bool m_ReportPixels = true;
    bool m_CornerAlways = false;
    bool m_InScroll = false;
    bool m_PaneMovesItself = false;
    unsigned m_Moves = 0;  // of models, by this box
    bool m_UpdateAtOnce = false;
    std::vector<std::unique_ptr<CElementPtr<CScrollableElement>>> m_Connected;  // those that have wrapped models
    CModelOwner m_VertOwner{this, &CScrollBox::SetVertScroll};
    CModelOwner m_HorzOwner{this, &CScrollBox::SetHorzScroll};
};

}  // namespace vexel
