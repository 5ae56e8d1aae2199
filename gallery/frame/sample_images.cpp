#include "gallery/frame/sample_images.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

namespace gallery
{

using namespace vexelbase;

namespace
{

class CSampleImages : public IImageList
{
public:
    int GetCount() const override { return 3; }
    size<int> GetSize(int index) const override
    {
        int const side = ToDevicePixels(16);
        return index >= 0 && index < GetCount() ? size<int>{side, side} : size<int>{};
    }
    void Draw(IPainter* painter, int index, double x, double y) override
    {
        static _color const colors[] = {_color::FromRgb(0xC8, 0x3C, 0x32), _color::FromRgb(0x3C, 0x6E, 0xC8),
                                        _color::FromRgb(0x3C, 0x96, 0x50)};
        if (index >= 0 && index < GetCount())
            DrawShape(painter, index, colors[index], x, y);
    }
    void DrawDisabled(IPainter* painter, int index, double x, double y) override
    {
        if (index >= 0 && index < GetCount())
            DrawShape(painter, index, GetSysPalette()->GetColor(ISysPalette::scShadow), x, y);
    }

private:
    void DrawShape(IPainter* painter, int index, _color const& color, double x, double y)
    {
        brush const fill = painter->GetBrush();
        pen const line = painter->GetPen();
        painter->SetBrush({color, brush::bsSolid});
        painter->SetPen({color, pen::psSolid, 1});
        double const s = GetSize(index).width - 2;
        switch (index)
        {
        case 0:
            painter->RoundRect(x, y, x + s, y + s, s / 2, s / 2);
            break;
        case 1:
            painter->Rectangle(x, y, x + s, y + s);
            break;
        default:
            point<double> const corners[] = {{x, y + s}, {x + ToInt(s / 2), y}, {x + s, y + s}};
            painter->Polygon(corners, 3);
            break;
        }
        painter->SetBrush(fill);
        painter->SetPen(line);
    }
};

}  // namespace

IImageList& GetSampleImages()
{
    static CSampleImages images;
    return images;
}

}  // namespace gallery
