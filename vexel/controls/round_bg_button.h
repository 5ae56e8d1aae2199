#pragma once

#include "vexel/controls/custom_button.h"
#include "vexel/platform/raster_picture.h"

#include <map>
#include <string>

namespace vexel
{

/// A button with a rounded frame of two lines, filled from a shaded picture for each state. Pictures, colours and radius
/// belong to the class; each button keeps copies of the pictures in its own size. The ground around its corners is what
/// the parent painted.
class VEXEL_API CRoundBgButton : public CCustomButton
{
public:
    enum InternalBgImageIndex : int
    {
        BgDisabled = 0,
        BgHighlighted = 1,  ///< The pointer is over the button.
        BgNormal = 2,
        BgPressed = 3
    };
    using Pictures = std::map<InternalBgImageIndex, vexel_ptr<IRasterPicture>>;

    CRoundBgButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    // Of the class: buttons that exist take new pictures with their next size, the rest with their next paint ---------
    static double m_BorderRadius;  ///< Pixels.
    static _color m_InnerBorderCol;
    static _color m_InnerBorderColDisabled;
    static _color m_OuterBorderCol;
    static _color m_OuterBorderColDisabled;

    static void InitStaticBgPictures();  ///< Makes the built-in pictures; the first button does it. Needs a system.
    static void UpdateBgPicture(InternalBgImageIndex index, char const** xpm);
    static void UpdateBgPicture(InternalBgImageIndex index, vexel_ptr<IRasterPicture> picture);
    /// None: the painter's text colour stays. Highlighted and pressed go by normal where they have none of their own.
    static _color GetButtonTextColor(InternalBgImageIndex index);
    static void SetButtonTextColor(InternalBgImageIndex index, _color const& color);
    /// How much of a see-through button covers what is under it: 0 nothing, 255 all.
    static int GetButtonTransparency(InternalBgImageIndex index);
    static void SetButtonTransparency(InternalBgImageIndex index, int alpha);
    static void SetInnerBorderColors(_color const& normal, _color const& disabled);
    static void GetInnerBorderColors(_color& normal, _color& disabled);
    static void SetOuterBorderColors(_color const& normal, _color const& disabled);
    static void GetOuterBorderColors(_color& normal, _color& disabled);
    static void SetBorderRadius(double radius) { m_BorderRadius = radius; }
    static double GetBorderRadius() { return m_BorderRadius; }

    // Of the button -----------------------------------------------------------------------------------------------------
    vexel_ptr<IRasterPicture> GetCurrentPicture(InternalBgImageIndex index) const;  ///< Null: none.
    void SetCurrentPicture(InternalBgImageIndex index, vexel_ptr<IRasterPicture> picture);
    void InitCurrentBgPictures();                 ///< Copies of the class's, in their own size.
    void UpdateBgImgDimensions(CVisualElement*);  ///< Copies in the button's size.
    /// What it takes to show the text in bold; an empty one: the caption. Device pixels.
    size<int> GetOptimalSize(IPainter* painter, std::string const& text);

    // Parts of its drawing: nothing on a button of 2 pixels or less. Null painters are ignored ---------------------------
    void SetCurrentTextColor(IPainter* painter, InternalBgImageIndex index);
    void DrawBkgContent(IPainter* painter, InternalBgImageIndex index);     ///< All but the text.
    void DrawRawBkgContent(IPainter* painter, InternalBgImageIndex index);  ///< The filled frame; corners stay.
    void DrawBkgBorder(IPainter* painter);
    void DrawBkgImage(IPainter* painter, InternalBgImageIndex index);  ///< Inverts by the picture: twice is never.
    void ApplyRoundRectMask(IPainter* painter);                        ///< Blackens what the frame encloses.
    void DrawRoundBorder(IPainter* painter, _color const& color, rectangle<int> const& rect, double radius,
                         pen::PenStyle style);

public:  // From CVisualElement
    bool IsFullRepainted() const override { return false; }

public:  // From CButton
    void DrawBackground(IPainter* painter) override;
    size<int> GetAutoSizeAdditionalExtent() const override;

public:  // From CCustomButton
    void DrawNormalContent(IPainter* painter) override;
    void DrawHighlightedContent(IPainter* painter) override;
    void DrawPressedContent(IPainter* painter) override;
    void DrawFocusRect(IPainter* painter) override;

public:  // Overridable
    /// Of the background picture under a see-through button.
    virtual int GetBlurRadius(InternalBgImageIndex index) const;

private:
    bool IsLargeEnough() const;
    void DrawSeeThrough(IPainter* painter, InternalBgImageIndex index);
    void TakeCorners(IPainter* painter, IRasterPicture* picture);
    void DrawWithText(IPainter* painter, InternalBgImageIndex index);

    int m_BgOffsetX = 0;  // where the shown part of the scaled pictures begins
    int m_BgOffsetY = 0;
    Pictures m_CurrentPictures;
};

/// The class's picture, or null.
VEXEL_API vexel_ptr<IRasterPicture> GetStaticInternalPicture(CRoundBgButton::InternalBgImageIndex index);

}  // namespace vexel
