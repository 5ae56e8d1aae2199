#include "messages.h"

#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

namespace workbench
{

namespace
{

struct SImage
{
    CMessageSetUp::Image type;
    char const* sign;
    _color color;
};

SImage const g_Images[] = {{CMessageSetUp::ImageInfo, "i", _color::FromRgb(38, 110, 190)},
                           {CMessageSetUp::ImageWarning, "!", _color::FromRgb(200, 130, 20)},
                           {CMessageSetUp::ImageError, "x", _color::FromRgb(190, 50, 45)}};

struct SButton
{
    CMessageSetUp::Button type;
    char const* caption;
};

SButton const g_Buttons[] = {{CMessageSetUp::ButtonOk, "OK"},
                             {CMessageSetUp::ButtonRetry, "Try again"},
                             {CMessageSetUp::ButtonGoOn, "Go on"},
                             {CMessageSetUp::ButtonQuit, "Quit"}};

int const g_ImageSize = 32;  // unscaled

// A plate with a sign; pictures are opaque, so it has no rounded corners.
vexel_ptr<IRasterPicture> MakeImage(SImage const& image)
{
    ISystem* const system = GetCurrentSystem();
    int const extent = ToDevicePixels(g_ImageSize);
    vexel_ptr<IRasterPicture> picture = system ? system->CreateRasterPicture({extent, extent}) : nullptr;
    IPainter* const painter = picture ? picture->GetPainter() : nullptr;
    if (!painter)
        return nullptr;
    double const edge = extent - 1;
    painter->BeginPaint(IPainter::ssPaint);
    painter->SetBrush({image.color, brush::bsSolid});
    painter->FillRect(0, 0, edge, edge);
    font sign = GetDefaultGUIFont();
    sign.style |= font::fsBold;
    sign.size *= 2;
    painter->SetFont(sign);
    painter->SetTextColor(color_table[9]);
    painter->DrawString({0, 0, edge, edge}, image.sign, IPainter::AlignHCenter | IPainter::AlignVCenter, -1);
    painter->EndPaint();
    return picture;
}

}  // namespace

CMessageSetUp::CMessageSetUp()
{
    for (SImage const& image : g_Images)
        CMessageBox::SetPicture(image.type, MakeImage(image));
    for (SButton const& button : g_Buttons)
        CMessageBox::SetButtonCaption(button.type, button.caption);
}

CMessageSetUp::~CMessageSetUp()
{
    for (SImage const& image : g_Images)
        CMessageBox::SetPicture(image.type, nullptr);
    for (SButton const& button : g_Buttons)
        CMessageBox::SetButtonCaption(button.type, {});
}

}  // namespace workbench
