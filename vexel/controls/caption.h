#pragma once

#include "vexel/controls/label.h"
#include "vexel/core/transparent_flavor.h"
#include "vexel/core/visual_element.h"
#include "vexel/layout/layout_flavor.h"
#include "vexel/platform/text_formatter.h"

#include <string>
#include <vector>

namespace vexel
{

/// A text label, with an image of the control's image list before the text if wished. The text may have mark-up with links
/// that can be clicked. It can size itself to its text, wrap to its own width, and turn with the edge it is docked to.
class VEXEL_API CCaption : public CTransparentFlavor<CVisualElement>,
                           public CLayoutFlavor,         // text and image run along the edge
                           protected CHTMLTextFormatter  // lays out its own text, to learn where the links stand
{
public:
    /// One piece of a link: what stands in one line. The target is empty in all pieces but the first.
    struct Link
    {
        std::string target;
        rectangle<int> rect;  ///< Control pixels.
    };

    /// Against reading order, from the bottom right to the top left: from a later piece of a link the walk goes on to the
    /// one that holds the target.
    struct SLinkComparer
    {
        bool operator()(Link const& a, Link const& b) const
        {
            return a.rect.top != b.rect.top ? a.rect.top > b.rect.top : a.rect.left > b.rect.left;
        }
    };

    /// The links of the last drawing. Points and rectangles: control pixels of that time; edges belong to a link.
    class VEXEL_API LinkHolder
    {
    public:
        /// `target`: `length` characters, null for a further piece of the link before.
        void AddLink(char const* target, int length, rectangle<int> const& rect);
        void SetValid(bool valid);  ///< True: all links are known. False forgets them.
        bool IsValid() const { return m_Valid; }
        bool IsEmpty() const { return m_Links.empty(); }
        bool IsLink(point<int> const& position) const;
        /// The target of the link at the point; empty where there is none.
        std::string GetLink(point<int> const& position) const;

    private:
        std::vector<Link> m_Links;
        bool m_Valid = false;
        std::vector<Link> m_Spare;  // of the drawing before, so that the next one need not allocate
    };

    CCaption(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    /// A link was clicked: its target, and a flag to be set by who took care of it. If nobody does, the control's help is
    /// asked for that topic. A slot may delete the caption.
    signal_t<std::string const&, bool&> m_LinkClicked;

    // Text ------------------------------------------------------------------------------------------------------------
    std::string const& GetCaption() const { return m_Caption; }
    void SetCaption(std::string const& text);
    int GetTextAlign() const { return m_TextAlign; }
    void SetTextAlign(int flags);  ///< IPainter::AlignmentFlags; centred both ways at first.
    bool IsUseHTML() const { return m_UseHTML; }
    void UseHTML(bool use);  ///< The text has mark-up. Leaves the size as it is.
    /// True: text and font turn with the edge the caption is docked to.
    void SetTextLayout(bool turn);

    // Image -----------------------------------------------------------------------------------------------------------
    int GetImageIndex() const { return m_ImageIndex; }
    void SetImageIndex(int index);  ///< In the control's image list; -1: none, lower does nothing. Leaves the size.
    int GetImageSpace() const { return m_ImageSpace; }
    void SetImageSpace(int pixels);  ///< Between image and text, not scaled; below 0: the default, 4 scaled.

    // Size ------------------------------------------------------------------------------------------------------------
    bool IsAutoSize() const { return m_AutoSize; }
    void SetAutoSize(bool on);  ///< The element asks for the size of its text.
    bool IsAdjustHeight() const { return m_AdjustHeight; }
    void AdjustHeight(bool on);  ///< With automatic size: the width stays, text wraps in it, the height follows.
    int GetMaxTextWidth() const { return m_MaxTextWidth; }
    void SetMaxTextWidth(int pixels);  ///< Below 1: no limit.
    /// What automatic size adds to the text of a plain caption.
    static size<int> GetAutoSizeExtent();

    // Tooltip ---------------------------------------------------------------------------------------------------------
    bool IsTooltipFromCaption() const { return m_TooltipFromCaption; }
    /// A text that had to be shortened when it was last drawn becomes the tooltip; one of the application's own stays.
    void SetTooltipFromCaption(bool on) { m_TooltipFromCaption = on; }

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void SetAlignment(Alignment alignment) override;
    bool IsCopyToClipboardEnabled() const override { return true; }
    void DrawContent(IPainter* painter) override;
    void AttributeChanged() override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    std::string HandleAsString() const override;

public:  // Overridable
    virtual void DrawBackground(IPainter* painter);
    virtual rectangle<int> GetInternalRect() const { return GetBounds(); }  ///< Where text and image stand; own pixels.
    /// With automatic size asks for the size of the text; forgets the links until the next drawing. Without a painter
    /// the size stays until the next change of an attribute.
    virtual void RecalculateSize();
    virtual size<int> GetAutoSizeAdditionalExtent() const;  ///< Added to the text when it is measured.
    virtual size<int> GetDrawingAdditionalExtent() const;   ///< Taken off the text's place when it is drawn.
    virtual size<int> GetImageSize() const;  ///< Of the image with its gap; (0, 0) when there is none to be drawn.
    /// A piece of a link was drawn. See CHTMLTextFormatter.
    void OnDrawLink(char const* target, int length, rectangle<int> const& rect) override;

protected:
    IImageList* GetImages() const;  ///< The control's, or null.
    /// Text and image as DrawContent draws them, without the ground. The image is that of `images`.
    void DrawTextAndImage(IPainter* painter, int flags, IImageList* images);
    /// The text alone, where the subclass wants it; links, mark-up and the tooltip go by it as by DrawContent. Gives back
    /// its size.
    size<double> DrawText(IPainter* painter, rectangle<double> const& rect, int flags);

private:
    char const* GetDelimiters() const { return m_UseHTML ? HTMLDelimiters : DefaultDelimiters; }
    IPainter::ITextFormatter* GetFormatter() { return m_UseHTML ? this : nullptr; }
    int GetWrapExtent() const;
    size<double> MeasureText(IPainter* painter, size<int> const& image, size<int> const& extra);
    template <class Draw> void FollowDrawing(IPainter* painter, Draw const& draw);
    void FollowShortening(bool shortened);
    point<int> ToLinkPosition(int x, int y) const;

    LinkHolder m_Links;
    point<int> m_LinkOrigin;  // where the caption's left-top was when the links were drawn; control pixels
    std::string m_Caption;
    int m_TextAlign = IPainter::AlignHCenter | IPainter::AlignVCenter;
    int m_ImageIndex = -1;
    bool m_AutoSize = false;
    bool m_AdjustHeight = false;
    bool m_UseHTML = false;
    bool m_TooltipFromCaption = false;
    int m_MaxTextWidth = 0;
    int m_ImageSpace;
};

}  // namespace vexel
