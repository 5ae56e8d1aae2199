#pragma once

#include "vexel/controls/button.h"

namespace vexel
{

/// A button with a double arrow head on it.
class VEXEL_API CArrowButton : public CButton
{
public:
    enum ArrowType : int
    {
        ArrowLeft = 0,
        ArrowTop = 1,
        ArrowRight = 2,
        ArrowBottom = 3
    };

    CArrowButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    ArrowType GetArrowType() const { return m_ArrowType; }
    void SetArrowType(ArrowType type);
    int GetArrowSize() const { return m_ArrowSize; }  ///< Device pixels.
    void SetArrowSize(int size);                      ///< Unscaled pixels; 8 at first.

public:  // From CButton
    /// The arrow shows only where the content is larger than it in both directions.
    void DrawContent(IPainter* painter) override;

private:
    void DrawArrow(IPainter* painter) const;

    ArrowType m_ArrowType = ArrowLeft;
    int m_ArrowSize;
};

}  // namespace vexel
