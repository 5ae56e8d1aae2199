#pragma once

#include "vexel/controls/button.h"
#include "vexel/controls/image_holder.h"

#include <map>

namespace vexel
{

/// A mark that is on or off, with the caption beside it. Each click changes it. It is a button in what it does, not in its
/// look: style, shape and native drawing don't matter.
class VEXEL_API CCheckBox : public CButton
{
public:
    CCheckBox(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    signal_t<CCheckBox*> m_CheckChanged;  ///< After a click or a change by program.

    bool IsChecked() const { return m_Checked; }
    void SetChecked(bool checked);
    void ChangeCheck(CButton* button);  ///< What a click does: it turns the mark if that is allowed.

public:  // From CButton
    void DrawContent(IPainter* painter) override;
    size<int> GetImageSize() const override;  ///< The mark's.
    size<int> GetAutoSizeAdditionalExtent() const override;
    std::string HandleAsString() const override;  ///< "[X] " or "[ ] " and the caption.

public:  // Overridable
    /// At the left edge, half-way between top and bottom. Gives back its width.
    virtual int DrawCheckImage(IPainter* painter);
    virtual bool ChangeAllowed() const { return true; }  ///< By a click.

protected:
    int DrawMark(IPainter* painter, IPainter::ControlElement element) const;  ///< The platform's.
    int GetCenteredTop(int height) const;  ///< Where something of this height begins; own pixels.

private:
    void DrawFocusMark(IPainter* painter, int markWidth, size<double> const& text);

    bool m_Checked = false;
};

/// A check box with images of the application in place of the platform's mark.
class VEXEL_API CCustomCheckBox : public CCheckBox
{
public:
    using CCheckBox::CCheckBox;

    /// Bits of the number under which an image is kept: GetNativeState() and this one.
    static int const s_CheckedBit = 0x10;

    /// Asks for the image of a state, once for each; what the holder then holds is kept, also when that is nothing.
    signal_t<CCustomCheckBox*, int, CImageHolder&> m_NeedImage;

public:  // From CCheckBox
    int DrawCheckImage(IPainter* painter) override;
    size<int> GetImageSize() const override;  ///< The platform's mark until there is an image.

private:
    IImageList* GetImages() const;

    std::map<int, CImageHolder> m_Images;
};

}  // namespace vexel
