#include "gallery/pages/animation_page.h"

#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "gallery/pages/turning_gif.h"
#include "vexel/controls/image.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/picture_animation.h"
#include "vexel/platform/system.h"

#include <cmath>
#include <numbers>
#include <tuple>
#include <utility>

namespace gallery
{

namespace
{

CAnimationPage::Reader g_Reader;

constexpr int s_Dots = 8;

/// Dots in a ring, of which one after the other is the largest; transparent between them.
vexel_ptr<IAnimation> MakeRing(int delay)
{
    ISystem* const system = GetCurrentSystem();
    auto ring = MakeRef<CPictureAnimation>();
    int const extent = ToInt(64 * system->GetScale());
    for (int frame = 0; frame < s_Dots; ++frame)
    {
        auto const picture = system->CreateRasterPicture(size<int>{extent, extent});
        auto const mask = system->CreateRasterPicture(size<int>{extent, extent});
        for (auto const& [target, ground, dot] :
             {std::tuple{picture, color_table[1], color_table[4]}, std::tuple{mask, color_table[9], color_table[1]}})
        {
            IPainter& painter = *target->GetPainter();
            painter.BeginPaint(IPainter::ssPaint);
            painter.SetBrush({ground, brush::bsSolid});
            painter.FillRect(0, 0, extent - 1, extent - 1);
            painter.SetBrush({dot, brush::bsSolid});
            painter.SetPen({dot, pen::psSolid, 1});
            for (int i = 0; i < s_Dots; ++i)
            {
                double const angle = 2 * std::numbers::pi * i / s_Dots;
                double const x = extent * (0.5 + 0.36 * std::cos(angle));
                double const y = extent * (0.5 + 0.36 * std::sin(angle));
                double const radius = extent * (0.03 + 0.01 * ((i - frame + s_Dots) % s_Dots));
                painter.RoundRect(x - radius, y - radius, x + radius, y + radius, 2 * radius, 2 * radius);
            }
            painter.EndPaint();
        }
        ring->AddFrame(picture, delay, mask);
    }
    return ring;
}

/// An animation with a switch below it, which is on at first.
class CAnimationBox : public CPanel
{
public:
    CAnimationBox(CVisualElement* parent, std::string const& title, vexel_ptr<IAnimation> animation)
        : CPanel(parent, {190, 0}, alLeft), m_Image(nullptr)
    {
        new CLabel(this, {0, 28}, alTop, title);
        auto* const ground = new CPanel(this, {0, 110}, alTop);
        m_Image = new CImage(ground, {0, 0}, alClient);
        m_Image->SetAnimation(std::move(animation));
        m_Image->StartAnimation();
        auto* const run = new CToggle(this, {0, 28}, alTop, "Run");
        run->SetOn(true);
        run->m_SigToggled.connect(this, &CAnimationBox::Toggled);
    }

    CImage& GetImage() { return *m_Image; }

private:
    void Toggled(CToggle*, bool on)
    {
        if (on)
            m_Image->StartAnimation();
        else
            m_Image->StopAnimation();
        m_Image->GetParent()->Update(utElement);  // an image that stands still fills nothing
    }

    CImage* m_Image;
};

}  // namespace

void CAnimationPage::SetReader(Reader reader)
{
    g_Reader = std::move(reader);
}

void CAnimationPage::Build(CVisualElement* parent)
{
    new CPanel(parent, {12, 0}, alLeft);
    SetDefAnimationProcess(aptTimer);
    auto* const timer = new CAnimationBox(parent, "On a timer, 120 ms", MakeRing(120));
    SetDefAnimationProcess(aptThread);
    auto* const thread = new CAnimationBox(parent, "On a thread, 60 ms", MakeRing(60));
    Report(timer->GetImage().m_FrameChanged, "timer.frameChanged");
    Report(thread->GetImage().m_FrameChanged, "thread.frameChanged");
    if (vexel_ptr<IAnimation> file = g_Reader ? g_Reader(g_TurningGif, g_TurningGifSize) : nullptr)
        new CAnimationBox(parent, "From a GIF file", std::move(file));
}

}  // namespace gallery
