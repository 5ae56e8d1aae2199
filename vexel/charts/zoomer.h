#pragma once

#include "vexel/core/visual_element.h"

namespace vexel
{

/// A small horizontal slider for a zoom: a thumb in a groove between a "-" and a "+". A press beside the thumb moves it by
/// a fifth of the way. One that is too small for the slider shows its background alone.
class VEXEL_API CZoomer : public CVisualElement
{
public:
    static constexpr double slider_step = 0.2;

    CZoomer(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    // Signals: the position, after the change. A slot may delete the zoomer ------------------------------------------------
    signal_t<double> m_SigPosChanging;  ///< The thumb was dragged within the groove; not at its ends.
    signal_t<double> m_SigPosChanged;   ///< A press beside the thumb, or the end of a drag. Not SetSliderPos.

    double GetSliderPos() const { return m_Pos; }  ///< 0.0, left, to 1.0.
    void SetSliderPos(double position);            ///< Repaints in any case; a value outside changes nothing.
    bool IsDragging() const { return m_Dragging; }
    rectangle<int> const& GetThumbRect() const { return m_ThumbRect; }  ///< As last drawn; own pixels.

public:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;

public:  // Overridable
    virtual void DrawBackground(IPainter* painter);

private:
    void DrawSign(IPainter* painter, char const* text, int right, int flags) const;
    void DrawGroove(IPainter* painter) const;
    void DrawThumb(IPainter* painter) const;
    double GetWay() const;

    double m_Pos = 0;
    bool m_Dragging = false;
    rectangle<int> m_ThumbRect;
    int m_LastX = 0;  // of the drag
};

}  // namespace vexel
