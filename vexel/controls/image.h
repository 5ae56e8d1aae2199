#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/platform/animation.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/tasks/animation_process.h"

namespace vexel
{

/// An element that shows a running animation, else a picture, else an image of the control's image list. Behind a still
/// one it fills nothing.
class VEXEL_API CImage : public CVisualElement, public IAnimationProcess::IUpdater
{
public:
    using CVisualElement::CVisualElement;
    ~CImage() override;

    signal_t<CImage*> m_FrameChanged;  ///< Each step of the animation, before the repaint.

    // What it shows -----------------------------------------------------------------------------------------------------
    int GetImageIndex() const { return m_ImageIndex; }
    void SetImageIndex(int index);  ///< -1: none. A new index drops the picture.
    vexel_ptr<IRasterPicture> const& GetRasterPicture() const { return m_Picture; }
    void SetRasterPicture(vexel_ptr<IRasterPicture> picture);  ///< Another picture drops the index.
    vexel_ptr<IAnimation> const& GetAnimation() const { return m_Animation; }
    void SetAnimation(vexel_ptr<IAnimation> animation);  ///< Takes over from one that runs. Null ends it.
    void Clear();                                        ///< Shows nothing any more.
    bool IsAssigned() const { return m_Animation || m_Picture || m_ImageIndex != -1; }
    size<int> GetImageSize() const;  ///< Of what it shows now.

    // Animation ---------------------------------------------------------------------------------------------------------
    void StartAnimation();  ///< Without a control, as soon as it has one.
    void StopAnimation();
    bool IsAnimated() const { return m_Process && m_Process->IsAnimated(); }

    // Place: device pixels ----------------------------------------------------------------------------------------------
    int GetImageAlign() const { return m_ImageAlign; }
    void SetImageAlign(int flags);  ///< IPainter::AlignmentFlags; centred both ways at first.
    bool IsAutoSize() const { return m_AutoSize; }
    void SetAutoSize(bool on);  ///< The element asks for the size of the image and the offsets.
    rectangle<int> const& GetOffset() const { return m_Offset; }
    void SetOffset(rectangle<int> const& offset);               ///< Kept free on each side.
    point<int> GetDrawStartPos(size<int> const& extent) const;  ///< The left-top of an image of this size.

    virtual void RecalculateSize();

public:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    void AfterSetControl() override;
    void HandleControlDestroy() override;
    void ProcessSetControl(IControl* control) override;

public:  // From IAnimationProcess::IUpdater
    void UpdateAnimation() override;
    bool IsUpdatable() const override { return IsDisplayable(); }

private:
    void ImageChanged();
    void ReleaseProcess();

    int m_ImageIndex = -1;
    vexel_ptr<IRasterPicture> m_Picture;
    vexel_ptr<IAnimation> m_Animation;
    vexel_ptr<IAnimationProcess> m_Process;  // made at the first start
    bool m_StartPending = false;
    bool m_AutoSize = false;
    rectangle<int> m_Offset;
    int m_ImageAlign = 0x24;
};

}  // namespace vexel
