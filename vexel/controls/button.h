#pragma once

#include "vexel/controls/caption.h"
#include "vexel/controls/click_handler.h"
#include "vexel/core/native_drawing_flavor.h"
#include "vexel/tasks/repeatable_operation.h"

namespace vexel
{

/// A push button. It is drawn by the platform unless native drawing is switched off. Space and return operate it while it
/// has the focus. A button that repeats clicks again and again while it is held, and once more when it is released.
class VEXEL_API CButton : public CCaption,
                          public CNativeDrawingFlavor,
                          public CClickHandler,        // what press and release come to
                          public CRepeatableOperation  // while it is held
{
public:
    enum BorderStyle : int
    {
        BorderFlat = 0,  ///< A look of its own, coloured by what the mouse does.
        BorderRaised = 1,
        BorderSunken = 2  ///< Other values as for the free function DrawBorder.
    };
    enum BorderShape : int
    {
        ShapeBox = 0,
        ShapeThinBox = 1,
        ShapeNoFrame = 2  ///< From here on: no frame while it rests.
    };

    CButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    signal_t<CButton*> m_Clicked;  ///< Each click and each repetition. A slot may delete the button.

    // Look: matters without native drawing ------------------------------------------------------------------------------
    BorderStyle GetStyle() const { return m_Style; }
    void SetStyle(BorderStyle style);
    BorderShape GetShape() const { return m_Shape; }
    void SetShape(BorderShape shape);
    int GetNativeState() const;  ///< IPainter::ElementState bits.

    // Behaviour ---------------------------------------------------------------------------------------------------------
    bool IsAutoRepeat() const { return m_AutoRepeat; }
    void SetAutoRepeat(bool on) { m_AutoRepeat = on; }
    void SetRepeatInterval(int milliseconds) { CRepeatableOperation::SetRepeatInterval(milliseconds); }  ///< First 200.
    int GetButtonId() const { return m_ButtonId; }
    void SetButtonId(int id) { m_ButtonId = id; }  ///< What a CButtonSet tells of it.

public:  // From CVisualElement
    /// Docks it there; the text never turns.
    void SetAlignment(Alignment alignment) override;
    void SetEnabled(bool enabled) override;  ///< False ends a press without a word.
    void DrawContent(IPainter* painter) override;
    void ProcessSetVisible(bool visible) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    void HandleMouseHover(CVisualElement* previous) override;
    void HandleMouseLeave(CVisualElement* next) override;
    bool HandleKeyDown(int keys, int key) override;
    bool HandleKeyUp(int keys, int key) override;

public:  // From CCaption
    void DrawBackground(IPainter* painter) override;
    rectangle<int> GetInternalRect() const override;  ///< One pixel right and down while it is pressed.
    size<int> GetAutoSizeAdditionalExtent() const override;

public:                                                              // Overridable
    virtual bool IsMouseOverButton(int, int) const { return true; }  ///< Whether a press at this point counts.
    void ProcessStageChange(ClickStage stage) override;
    void ProcessClick() override;
    void ProcessRepeatOperation() override;

protected:
    bool IsUnderMouse() const;  ///< It is the element under the pointer; false without a control.

private:
    void DrawEdged(IPainter* painter);
    void DrawFlat(IPainter* painter);

    BorderStyle m_Style = BorderRaised;
    BorderShape m_Shape = ShapeBox;
    bool m_AutoRepeat = false;
    int m_ButtonId = 0;
    vexel_ptr<ICustomPaletteEx> m_EdgePalette;  // made when it is first drawn with an edge
};

}  // namespace vexel
