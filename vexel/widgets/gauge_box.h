#pragma once

#include "vexel/controls/bevel.h"
#include "vexel/controls/button.h"
#include "vexel/controls/caption.h"
#include "vexel/widgets/gauge.h"

namespace vexel
{

/// A framed gauge at the top, with room for a button beside it. The gauge takes the whole width as long as the button is
/// hidden, which it is until it gets a caption or is shown.
class VEXEL_API CGaugeBox : public CBevel
{
public:
    CGaugeBox(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CGaugeBox() override;

    // The parts, all owned by the box -----------------------------------------------------------------------------------
    CVisualElement& GetStrip() { return m_Frame; }    ///< At the top, 20 high, scaled: holds the others.
    CBevel& GetGaugeBevel() { return m_GaugeBevel; }  ///< The frame of the gauge, in the strip.
    CGauge& GetGauge() { return m_Gauge; }
    CGauge const& GetGauge() const { return m_Gauge; }
    CButton& GetButton() { return m_Button; }  ///< At the right of the strip, as wide as its text.
    CButton const& GetButton() const { return m_Button; }

    int GetMaxWidth() const { return m_MaxWidth; }
    /// In a wider place the content keeps to the left, and its width is this; device pixels, 0 or less: no limit. What has
    /// been kept free at the right stays so until the place is wider by another amount.
    void SetMaxWidth(int width);

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void ProcessRearrange(CVisualElement** element) override;
    void ProcessChange(CVisualElement** element) override;

private:
    void ButtonVisible(CVisualElement* button, bool visible);

    // Before the parts, which call back while they are made and destroyed.
    int m_MaxWidth = 0;
    bool m_ButtonWaits = false;  // for a caption, to be shown
    CVisualElement m_Frame;
    CBevel m_GaugeBevel;
    CGauge m_Gauge;
    CButton m_Button;
};

/// With a line of text at the bottom. It is as high as its parts together.
class VEXEL_API CGaugeBoxEx : public CGaugeBox
{
public:
    CGaugeBoxEx(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CGaugeBoxEx() override;

    CCaption& GetText() { return m_Text; }  ///< At the bottom, as high as its text.
    CCaption const& GetText() const { return m_Text; }
    CVisualElement& GetTextSpacer() { return m_TextSpacer; }  ///< Above the text.

public:  // From CVisualElement
    void ProcessRearrange(CVisualElement** element) override;

private:
    bool m_Built = false;  // all parts live; before them, since they call back
    CCaption m_Text;
    CVisualElement m_TextSpacer;
};

}  // namespace vexel
