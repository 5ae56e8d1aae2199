#include "vexel/platform/qt/movie_animation.h"

#include "vexel/platform/picture_animation.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/system.h"

#include <QImage>
#include <QMovie>

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

vexel_ptr<IAnimation> Read(QMovie& movie, std::string* error)
{
    ISystem* const system = GetCurrentSystem();
    auto animation = MakeRef<CPictureAnimation>();
    // The first frame comes again when the last one has been read, unless the file tells their number.
    bool const readable = system && movie.isValid();
    for (int number = 0; readable && number < s_MaxFrames && movie.jumpToFrame(number); ++number)
    {
        if (movie.currentImage().isNull())
            break;
        AddFrame(*animation, *system, movie.currentImage(), movie.nextFrameDelay());
        if (movie.frameCount() > 0 && number + 1 >= movie.frameCount())
            break;
    }
    if (animation->GetFrameCount() > 0)
        return animation;
    if (error)
    {
        std::string const reason = movie.lastErrorString().toStdString();
        *error = !system ? "there is no system" : reason.empty() ? "no picture that can be read" : reason;
    }
    return nullptr;
}

}  // namespace

vexel_ptr<IAnimation> LoadAnimation(std::string const& path, std::string* error)
{
    QMovie movie(QString::fromStdString(path));
    return Read(movie, error);
}

vexel_ptr<IAnimation> LoadAnimation(QIODevice* device, std::string* error)
{
    QMovie movie(device);
    return Read(movie, error);
}

}  // namespace vexelbase::qt
