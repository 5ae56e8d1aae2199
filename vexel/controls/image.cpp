#include "vexel/controls/image.h"

#include "vexel/core/control.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"

#include <cstdint>

namespace vexel
{

CImage::~CImage()
{
    ReleaseProcess();
}

void CImage::ReleaseProcess()
{
    if (!m_Process)
        return;
    m_Process->StopAnimation();
    m_Process->SetUpdater(nullptr);
    m_Process->SetAnimation(nullptr);
    m_Process->SetProcessSynchronizer(nullptr);
}

// What it shows -----------------------------------------------------------------------------------------------------------

// With automatic size an image of the same size would not be painted otherwise.
void CImage::ImageChanged()
{
    CAliveGuard const alive(this);
    RecalculateSize();
    if (alive && m_AutoSize)
        Update(utElement);
}

void CImage::SetImageIndex(int index)
{
    if (index == m_ImageIndex)
        return;
    m_ImageIndex = index;
    m_Picture = nullptr;
    ImageChanged();
}

void CImage::SetRasterPicture(vexel_ptr<IRasterPicture> picture)
{
    if (picture == m_Picture)
        return;
    m_Picture = std::move(picture);
    m_ImageIndex = -1;
    ImageChanged();
}

void CImage::SetAnimation(vexel_ptr<IAnimation> animation)
{
    if (animation == m_Animation)
        return;
    CAliveGuard const alive(this);
    bool const running = IsAnimated();
    ReleaseProcess();
    m_Animation = std::move(animation);
    if (running)
        StartAnimation();
    if (alive)
        ImageChanged();
}

void CImage::Clear()
{
    ReleaseProcess();
    m_StartPending = false;
    m_Animation = nullptr;
    m_Picture = nullptr;
    m_ImageIndex = -1;
    ImageChanged();
}

size<int> CImage::GetImageSize() const
{
    if (m_Animation && IsAnimated())
        return m_Animation->GetSize();
    if (m_Picture)
        return m_Picture->GetSize();
    IImageList* const images = m_ImageIndex >= 0 && GetControl() ? GetControl()->GetImageList() : nullptr;
    return images ? images->GetSize(m_ImageIndex) : size<int>();
}

// Animation ---------------------------------------------------------------------------------------------------------------

void CImage::StartAnimation()
{
    if (!m_Animation || IsAnimated())
        return;
    if (!GetControl())
    {
        m_StartPending = true;
        return;
    }
    m_StartPending = false;
    if (!m_Process)
        m_Process = CreateAnimationProcess();
    else
        m_Process->StopAnimation();
    if (!m_Process)
        return;
    CAliveGuard const alive(this);
    vexel_ptr<IAnimationProcess> const process = m_Process;  // the first frame is shown within the start
    process->SetProcessSynchronizer(GetControl()->GetWindow());
    process->SetUpdater(this);
    process->SetAnimation(m_Animation.get());
    process->StartAnimation();
    if (alive)
        RecalculateSize();
}

void CImage::StopAnimation()
{
    m_StartPending = false;
    if (!IsAnimated())
        return;
    m_Process->StopAnimation();
    ImageChanged();
}

void CImage::AfterSetControl()
{
    CAliveGuard const alive(this);
    RecalculateSize();
    if (alive && m_StartPending)
        StartAnimation();
}

// The process hands its steps over by the control's window: it goes on in the next control.
void CImage::ProcessSetControl(IControl*)
{
    m_StartPending = m_StartPending || IsAnimated();
    ReleaseProcess();
}

void CImage::HandleControlDestroy()
{
    ReleaseProcess();
}

void CImage::UpdateAnimation()
{
    CAliveGuard const alive(this);
    m_FrameChanged(this);
    if (alive)
        Update(utElement);
}

// Place -------------------------------------------------------------------------------------------------------------------

void CImage::SetImageAlign(int flags)
{
    if (flags == m_ImageAlign)
        return;
    m_ImageAlign = flags;
    Update(utElement);
}

void CImage::SetAutoSize(bool on)
{
    if (on == m_AutoSize)
        return;
    m_AutoSize = on;
    RecalculateSize();
}

void CImage::SetOffset(rectangle<int> const& offset)
{
    if (offset == m_Offset)
        return;
    m_Offset = offset;
    ImageChanged();
}

void CImage::RecalculateSize()
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    if (!window || window->IsDestroying())
        return;
    if (!m_AutoSize)
    {
        Update(utElement);
        return;
    }
    size<int> const extent = GetImageSize();
    SetSize({AddSaturated(AddSaturated(extent.width, m_Offset.left), m_Offset.right),
             AddSaturated(AddSaturated(extent.height, m_Offset.top), m_Offset.bottom)},
            false);
}

point<int> CImage::GetDrawStartPos(size<int> const& extent) const
{
    rectangle<int> const b = GetBounds();
    rectangle<int> const& o = m_Offset;
    std::int64_t x = 0;
    if ((m_ImageAlign & IPainter::AlignLeft) != 0)
        x = std::int64_t{o.left} + b.left;
    else if ((m_ImageAlign & IPainter::AlignRight) != 0)
        x = std::int64_t{b.right} - o.right - extent.width;
    else
        x = (std::int64_t{b.left} + b.right + o.left - o.right - extent.width) / 2;
    std::int64_t y = 0;
    if ((m_ImageAlign & IPainter::AlignTop) != 0)
        y = std::int64_t{o.top} + b.top;
    else if ((m_ImageAlign & IPainter::AlignBottom) != 0)
        y = std::int64_t{b.bottom} - o.bottom - extent.height;
    else
        y = (std::int64_t{b.top} + b.bottom + o.top - o.bottom - extent.height) / 2;
    return {SaturateToInt(x), SaturateToInt(y)};
}

void CImage::DrawContent(IPainter* painter)
{
    size<int> const extent = GetImageSize();
    point<int> const position = GetDrawStartPos(extent);
    if (m_Animation && IsAnimated())
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
        m_Animation->Draw(painter, position.x, position.y);
    }
    else if (m_Picture)
        painter->DrawRasterPicture(m_Picture.get(), position.x, position.y, AddSaturated(position.x, extent.width),
                                   AddSaturated(position.y, extent.height), IPainter::roCopy);
    else if (m_ImageIndex >= 0 && GetControl() && GetControl()->GetImageList())
        GetControl()->GetImageList()->Draw(painter, m_ImageIndex, position.x, position.y);
}

}  // namespace vexel
