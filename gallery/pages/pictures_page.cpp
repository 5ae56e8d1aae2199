#include "gallery/pages/pictures_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/help_button.h"
#include "vexel/controls/image.h"
#include "vexel/controls/picture_button.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"

#include <cmath>

namespace gallery
{

namespace
{

// clang-format off
char const* g_Lines[] = {
    "12 12 4 1",
    ". c None",
    "# c #503214",
    "y c #FFC83C",
    "w c #FFF0B4",
    "....####....",
    "..##yyyy##..",
    ".#yyyyyyyy#.",
    ".#ywwyyyyy#.",
    "#yywwyyyyyy#",
    "#yyyyyyyyyy#",
    "#yyyyyyyyyy#",
    "#yyyyyyyyyy#",
    ".#yyyyyyyy#.",
    ".#yyyyyyyy#.",
    "..##yyyy##..",
    "....####...."};
// clang-format on

/// A picture with a chequered ground and a diagonal.
vexel_ptr<IRasterPicture> MakePicture(int color)
{
    int const side = ToDevicePixels(32);
    vexel_ptr<IRasterPicture> picture = GetCurrentSystem()->CreateRasterPicture(size<int>{side, side});
    IPainter* const painter = picture->GetPainter();
    painter->BeginPaint(IPainter::ssPaint);
    int const cell = std::max(side / 8, 1);
    for (int i = 0; i * cell < side; ++i)
    {
        for (int j = 0; j * cell < side; ++j)
        {
            painter->SetBrush({(i + j) % 2 == 0 ? color_table[color] : color_table[9], brush::bsSolid});
            painter->FillRect(i * cell, j * cell, (i + 1) * cell - 1, (j + 1) * cell - 1);
        }
    }
    painter->SetPen({color_table[1], pen::psSolid, 2});
    painter->MoveTo(0, 0);
    painter->LineTo(side - 1, side - 1);
    painter->EndPaint();
    return picture;
}

/// Dots on a circle, one of them dark.
class CTurningDots : public IAnimation
{
public:
    int GetDelay() override { return 100; }
    void NextFrame() override { m_Frame = (m_Frame + 1) % g_Dots; }
    size<int> GetSize() const override
    {
        int const side = ToDevicePixels(40);
        return {side, side};
    }
    void Draw(IPainter* painter, double x, double y) override
    {
        double const side = GetSize().width;
        double const dot = ToDevicePixels(6);
        double const radius = (side - dot) / 2 - 1;
        for (int i = 0; i < g_Dots; ++i)
        {
            double const angle = 2 * 3.14159265358979 * i / g_Dots;
            double const left = std::floor(x + side / 2 + radius * std::sin(angle) - dot / 2);
            double const top = std::floor(y + side / 2 - radius * std::cos(angle) - dot / 2);
            int const behind = (m_Frame - i + g_Dots) % g_Dots;
            int const level = std::min(60 + behind * 22, 220);
            _color const color = _color::FromRgb(level, level, level);
            painter->SetBrush({color, brush::bsSolid});
            painter->SetPen({color, pen::psSolid, 1});
            painter->RoundRect(left, top, left + dot, top + dot, dot / 2, dot / 2);
        }
    }

private:
    static constexpr int g_Dots = 8;
    int m_Frame = 0;
};

/// A cell with a caption below what stands in it.
CPanel* MakeCell(CGrid* grid, std::string const& text)
{
    auto* const cell = new CPanel(grid, {0, 0}, alNone);
    cell->SetBkColor(ISysPalette::scWindow);
    auto* const label = new CPanel(cell, {0, 18}, alBottom);
    label->SetBkColor(ISysPalette::scWindow);
    label->SetFgColor(ISysPalette::scShadow);
    label->SetText(text);
    return cell;
}

/// An element that has a cell for itself.
template <class Element> Element* AddCell(CGrid* grid, std::string const& text, Alignment alignment = alClient)
{
    CPanel* const cell = MakeCell(grid, text);
    return new Element(cell, {0, 0}, alignment);
}

}  // namespace

void CPicturesPage::Build(CVisualElement* parent)
{
    XPMImage const xpm(XPMBuf(g_Lines, true));
    auto* const buttons = new CGrid(parent, {0, 190}, alTop, {118, 84}, 8);
    auto const add = [&](std::string const& text) {
        auto* const button = AddCell<CPictureButton>(buttons, text);
        Report(button->m_Clicked, text + ".clicked");
        return button;
    };
    auto* const list = add("image list");
    list->SetNormalImage(1);
    list->SetHighlightedImage(0);
    list->SetPressedImage(2);
    add("XPM")->SetNormalImage(xpm);
    auto* const picture = add("picture");
    picture->SetNormalImage(MakePicture(4));
    picture->SetHighlightedImage(MakePicture(6));
    picture->SetPressedImage(MakePicture(13));
    auto* const help = AddCell<CHelpButton>(buttons, "help button");
    Report(help->m_Clicked, "help.clicked");
    auto* const caption = AddCell<CCaptionButton>(buttons, "caption button");
    caption->SetNormalImage(2);
    Report(caption->m_Clicked, "caption.clicked");
    add("no image");
    auto* const listOff = add("disabled, list");
    listOff->SetNormalImage(1);
    listOff->SetEnabled(false);
    auto* const xpmOff = add("disabled, XPM");
    xpmOff->SetNormalImage(xpm);
    xpmOff->SetEnabled(false);
    auto* const pictureOff = add("disabled, picture");
    pictureOff->SetNormalImage(MakePicture(4));
    pictureOff->SetEnabled(false);
    auto* const own = add("disabled, own");
    own->SetNormalImage(1);
    own->SetDisabledImage(2);
    own->SetEnabled(false);

    auto* const images = new CGrid(parent, {0, 0}, alClient, {118, 84}, 8);
    struct SPlace
    {
        char const* text;
        int align;
    };
    static SPlace const places[] = {{"left, top", IPainter::AlignLeft | IPainter::AlignTop},
                                    {"centred", IPainter::AlignHCenter | IPainter::AlignVCenter},
                                    {"right, bottom", IPainter::AlignRight | IPainter::AlignBottom}};
    for (SPlace const& place : places)
    {
        auto* const image = AddCell<CImage>(images, place.text);
        image->SetImageAlign(place.align);
        image->SetRasterPicture(MakePicture(11));
        ReportMouse(image, place.text);
    }
    auto* const index = AddCell<CImage>(images, "image list");
    index->SetImageIndex(0);
    auto* const sized = AddCell<CImage>(images, "by its own size", alLeft);
    sized->SetAutoSize(true);
    sized->SetOffset({6, 6, 6, 6});
    sized->SetRasterPicture(MakePicture(17));
    auto* const animated = AddCell<CImage>(images, "animated");
    animated->SetBkColor(ISysPalette::scWindow);
    animated->SetAnimation(vexel_ptr<IAnimation>(new CTurningDots));
    animated->StartAnimation();
    Report(animated->m_FrameChanged, "frame");
}

}  // namespace gallery
