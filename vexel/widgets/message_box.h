#pragma once

#include "vexel/controls/button_set.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/widgets/message_box_base.h"

#include <string>

namespace vexel
{

/// A message: image, title, text and a row of buttons. It is no window, and a press neither closes nor disables anything:
/// whoever listens hides or deletes it.
///
///     box->GetTitle().SetCaption("Disk almost full");
///     box->GetText().SetCaption("About 200 MB are left.");
///     box->GetButtons().SetButtons(okButton | retryButton);
///
/// Pictures and captions of buttons are class-wide, so that an application sets them once, in its own language, before its
/// first box. Without, boxes have no image and their buttons the caption "<Unassigned>".
class VEXEL_API CMessageBox : public CMessageBoxBase
{
public:
    using ButtonType = int;  ///< One of the bits 1, 2, 4, 8, 16, 32, 64; the application says what each means.
    using ImageType = int;   ///< A kind of picture, any number.

    CMessageBox(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CMessageBox() override;

    signal_t<CMessageBox*, int> m_ButtonPressed;  ///< The button's bit. A slot may delete the box.

    // The parts, owned by the box ----------------------------------------------------------------------------------------------
    CButtonSet& GetButtons() { return m_Buttons; }  ///< At the bottom.
    CButtonSet const& GetButtons() const { return m_Buttons; }
    CCaption& GetText() { return m_Text; }  ///< Below the title.
    CCaption const& GetText() const { return m_Text; }

    void SetImageType(ImageType type);  ///< Takes that picture; a type without one changes nothing.
    void SetButtonsVisible(bool visible);
    bool IsButtonsVisible() const { return m_Buttons.IsVisible(); }
    /// Another text will wrap at the width of the one that shows, so that the box keeps its size.
    void KeepTextWidth();
    void ButtonPressed(int value) { m_ButtonPressed(this, value); }

    // Class-wide, not locked: to be filled by the GUI thread before the first box. Boxes that show a picture keep it -------
    static void SetPicture(ImageType type, vexel_ptr<IRasterPicture> picture);  ///< Null: none.
    static vexel_ptr<IRasterPicture> GetPicture(ImageType type);                ///< Null if there is none.
    static void SetButtonCaption(ButtonType type, std::string const& caption);
    static std::string GetButtonCaption(ButtonType type);  ///< Empty if there is none.

    // Metrics: device pixels ---------------------------------------------------------------------------------------------------
    static int GetBaseOffset();          ///< What stands around the parts.
    static int GetTextSizeCorrection();  ///< What captions that size themselves bring along of it.

private:
    CButtonSet m_Buttons;
    CCaption m_Text;
};

}  // namespace vexel
