#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/platform/native_controls.h"

namespace vexel
{

/// Hosts a native control in the tree: keeps it on what is displayable of this element, shows it with this element's
/// paint and hides it with the element. A control that gets the native focus makes its container the focused element, if
/// that can have the focus (SetCanHaveFocus, false at first); the container's focus goes to the control.
class VEXEL_API CContainer : public CVisualElement
{
public:
    CContainer(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CContainer() override;

    ICustomControl* GetNativeControl() const { return m_NativeControl.get(); }
    void SetNativeControl(ICustomControl* control);  ///< Shared; the former one is let go. Null: none.

    // Place: pixels -------------------------------------------------------------------------------------------------
    rectangle<int> const& GetOffset() const { return m_Offset; }
    void SetOffset(rectangle<int> const& offset);  ///< The control's distance from each edge; above 0 inwards.
    /// True: only SetPos, SetOffset, a paint and UpdateControlPos place the control, and no longer every layout.
    void SetManualControlPositioning(bool manual) { m_ManualPositioning = manual; }
    void UpdateControlPos();  ///< Places the control, or hides it where nothing of it can show.
    rectangle<int> GetControlRect() const { return m_ControlRect; }  ///< As last placed, in control pixels.
    /// Asks for the control's natural height, or width, with the offsets' difference.
    void FitHeight();
    void FitWidth();

    // Visibility ------------------------------------------------------------------------------------------------------
    void CheckVisible();       ///< Hides the control, or has it shown by the next paint.
    void ProcessNeedToShow();  ///< Shows it now if it is to be shown.

    // From CVisualElement ---------------------------------------------------------------------------------------------
    void SetPos(rectangle<int> const& rect, bool force) override;
    rectangle<int> GetContentRect() const override;
    void SetEnabled(bool enabled) override;
    void DrawContent(IPainter* painter) override;  ///< Fills behind the control, and shows it.
    void AttributeChanged() override;              ///< Refreshes the control; the container itself isn't repainted.
    void ProcessSetVisible(bool) override { CheckVisible(); }
    void ProcessSetParentVisible(bool) override { CheckVisible(); }
    void HandleGetFocus(CVisualElement* other, bool focused) override;
    void HandleLostFocus(CVisualElement* other) override;
    void HandleControlDestroy() override;
    void HandleRefreshPos() override;
    std::string HandleAsString() const override;

protected:
    virtual void FitControlPos(rectangle<int> const&) {}  ///< The control was placed there; control pixels.

private:
    bool GetNaturalRect(rectangle<int>& rect);
    void ControlFocusIn(ICustomControl*) { SetFocus(false); }

    bool m_ManualPositioning = false;
    bool m_NeedShow = false;  // by the next paint
    vexel_ptr<ICustomControl> m_NativeControl;
    rectangle<int> m_Offset;
    rectangle<int> m_ControlRect;
};

}  // namespace vexel
