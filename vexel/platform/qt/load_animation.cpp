#include "vexel/platform/qt/load_animation.h"

#include "vexel/platform/picture_animation.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/system.h"

#include <QImage>
#include <QImageReader>

namespace vexelbase::qt
{

namespace
{

constexpr int s_DefaultDelay = 100;           // milliseconds
constexpr std::uint32_t s_Kept = 0xFFFFFFFF;  // of a mask: what lies behind stays
constexpr std::uint32_t s_Black = 0xFF000000;
constexpr int s_Opaque = 128;  // from this alpha on a pixel counts as opaque
constexpr int s_MaxFrames = 10'000;

void AddFrame(CPictureAnimation& animation, ISystem& system, QImage const& source, int delay)
{
    QImage const image = source.convertToFormat(QImage::Format_ARGB32);
    size<int> const extent{image.width(), image.height()};
    vexel_ptr<IRasterPicture> const picture = system.CreateRasterPicture(extent);
    vexel_ptr<IRasterPicture> const mask = system.CreateRasterPicture(extent);
    bool transparent = false;
    for (int y = 0; y < extent.height; ++y)
    {
        auto const* const from = reinterpret_cast<QRgb const*>(image.constScanLine(y));
        std::uint32_t* const colors = picture->GetPixels().Row(y);
        std::uint32_t* const kept = mask->GetPixels().Row(y);
        for (int x = 0; x < extent.width; ++x)
        {
            bool const opaque = qAlpha(from[x]) >= s_Opaque;
            colors[x] = opaque ? (0xFF000000u | (from[x] & 0xFFFFFFu)) : s_Black;
            kept[x] = opaque ? s_Black : s_Kept;
            transparent = transparent || !opaque;
        }
    }
    animation.AddFrame(picture, delay < 1 ? s_DefaultDelay : delay, transparent ? mask : vexel_ptr<IRasterPicture>());
}

vexel_ptr<IAnimation> Read(QImageReader& reader, std::string* error)
{
    ISystem* const system = GetCurrentSystem();
    auto animation = MakeRef<CPictureAnimation>();
    QImage image;
    while (system && animation->GetFrameCount() < s_MaxFrames && reader.canRead() && reader.read(&image))
        AddFrame(*animation, *system, image, reader.nextImageDelay());
    if (animation->GetFrameCount() > 0)
        return animation;
    if (error)
        *error = system ? reader.errorString().toStdString() : "there is no system";
    return nullptr;
}

}  // namespace

vexel_ptr<IAnimation> LoadAnimation(std::string const& path, std::string* error)
{
    QImageReader reader(QString::fromStdString(path));
    return Read(reader, error);
}

vexel_ptr<IAnimation> LoadAnimation(QIODevice* device, std::string* error)
{
    QImageReader reader(device);
    return Read(reader, error);
}

}  // namespace vexelbase::qt
