#pragma once

#include "vexel/core/transparent_flavor.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"

#include <functional>
#include <string>

namespace gallery
{

using namespace vexel;

/// An area filled with its background colour, with a text that stands by the alignment flags.
class CPanel : public CVisualElement
{
public:
    CPanel(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    void SetText(std::string const& text);
    std::string const& GetText() const { return m_Text; }
    void SetTextFlags(int flags);                      ///< Of IPainter::AlignmentFlags; centred at first.
    void SetFrame(bool frame);                         ///< One pixel in the shadow colour around.
    void SetMargin(int margin) { m_Margin = margin; }  ///< Around the text, unscaled.

protected:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    std::string HandleAsString() const override { return m_Text; }

private:
    std::string m_Text;
    int m_Flags = IPainter::AlignHCenter | IPainter::AlignVCenter | IPainter::AlignFitText;
    int m_Margin = 4;
    bool m_Frame = false;
};

/// A text that takes a line or more; as CPanel but without a frame, at the left.
class CLabel : public CPanel
{
public:
    CLabel(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::string const& text);
};

/// Places its children in cells of one size, row by row.
class CGrid : public CPanel
{
public:
    CGrid(CVisualElement* parent, size<int> const& extent, Alignment alignment, size<int> const& cell, int gap);

    void SetPos(rectangle<int> const& rect, bool force) override;

private:
    size<int> const m_Cell;  // unscaled
    int const m_Gap;
};

/// A cell with a drawing and a caption below it.
class CSample : public CVisualElement
{
public:
    using Draw = std::function<void(IPainter*, rectangle<double> const&)>;

    CSample(CVisualElement* parent, std::string const& caption, Draw draw);

protected:  // From CVisualElement
    void DrawContent(IPainter* painter) override;

private:
    std::string const m_Caption;
    Draw const m_Draw;
};

}  // namespace gallery
