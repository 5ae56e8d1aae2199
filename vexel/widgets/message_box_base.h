#pragma once

#include "vexel/controls/caption.h"
#include "vexel/controls/image.h"
#include "vexel/layout/box.h"

namespace vexel
{

/// The frame of the system's boxes: an image at the left, a title to its right, level with the image's middle, and below
/// it what the box is for. An element like others, to be docked anywhere; as high as its parts. Without an image, or with
/// an empty title, the parts keep their places.
class VEXEL_API CMessageBoxBase : public CVertBox
{
public:
    CMessageBoxBase(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CMessageBoxBase() override;

    // The parts, all owned by the box ----------------------------------------------------------------------------------------
    CImage& GetImage() { return m_Image; }
    CImage const& GetImage() const { return m_Image; }
    CVisualElement& GetTopSpacer() { return m_TopSpacer; }
    CCaption& GetTitle() { return m_Title; }  ///< Bold, and larger than other texts.
    CCaption const& GetTitle() const { return m_Title; }
    CVisualElement& GetTitleSpacer() { return m_TitleSpacer; }

    /// Levels the title with the image and ends the space below it with the image's foot. Done after each change.
    void CheckImageAlign();

public:  // From CVisualElement
    void AttributeChanged() override;
    void ProcessRearrange(CVisualElement** element) override;

protected:
    void EndParts() { m_Constructed = false; }  ///< First thing in the destructor of a class with parts of its own.

private:
    bool m_Constructed = false;  // all parts live; before them, since they call back
    CImage m_Image;
    CVisualElement m_TopSpacer;
    CCaption m_Title;
    CVisualElement m_TitleSpacer;
};

/// The frame around any element, its content, which stands at the bottom.
template <class T> class CMessageBoxTempl : public CMessageBoxBase
{
public:
    CMessageBoxTempl(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CMessageBoxBase(parent, extent, alignment), m_Content(nullptr, {10, 10}, alBottom)
    {
        m_Content.SetDynamic(false);
        m_Content.ReParent(this, true);
    }
    ~CMessageBoxTempl() override { EndParts(); }

    T& GetContent() { return m_Content; }
    T const& GetContent() const { return m_Content; }

private:
    T m_Content;
};

}  // namespace vexel
