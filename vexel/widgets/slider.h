#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/layout/layout_flavor.h"
#include "vexel/widgets/slider_drawing_model.h"
#include "vexel/widgets/slider_model.h"

#include <utility>
#include <vector>

namespace vexel
{

/// A track with a pointer, and a row of points with captions if its model has any. Without points its position is the
/// offset along the track in pixels. The pointer can be dragged, a press beside it moves it there, and the arrow keys
/// move it by one. A new slider is vertical, whatever its alignment.
class VEXEL_API CSlider : public CVisualElement,
                          public CLayoutFlavor  // one code for both directions
{
public:
    enum SliderDirection : int
    {
        SliderVertical = 0,  ///< Values grow downwards. So does any other value.
        SliderHorizontal = 1
    };

    /// One point.
    struct SItem
    {
        int index = 0;  ///< In the model.
        /// Where its caption lay when it was last drawn: pixels along the track, from its start.
        int start = 0;
        int end = 0x7FFFFFFF;
    };

    CSlider(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    // Signals: the position as a double. A slot may delete the slider --------------------------------------------------------
    signal_t<CSlider*, double> m_PosTracking;  ///< A step of a drag.
    /// A press, a key or a call has changed it, or a drag has ended, also where it came to nothing.
    signal_t<CSlider*, double> m_PosChanged;

    // Position: the number of a point in the order of values, or pixels along the track --------------------------------------
    int GetSliderPos() const { return m_Pos; }
    void SetSliderPos(int position) { UpdateSliderPos(position, false); }
    /// A position that doesn't exist, or the present one, changes nothing.
    void UpdateSliderPos(int position, bool tracking);
    int GetPointCount() const;              ///< Without points the length of the track.
    double GetPointValue(int point) const;  ///< 0 for points that don't exist.
    std::string GetPointCaption(int point) const;

    // Models: not owned; null means the shared default ------------------------------------------------------------------------
    ISliderModel* GetModel() const { return m_Model; }
    /// The position stays: whoever takes points away sets it. A model that dies is forgotten.
    void SetModel(ISliderModel* model);
    ISliderDrawingModel* GetDrawingModel() const { return m_DrawingModel; }
    void SetDrawingModel(ISliderDrawingModel* model);  ///< Must outlive its use.
    void ProcessModelChange(ISliderModel* model);      ///< Reads the points anew; repaints nothing.
    std::vector<std::pair<double, SItem>> const& GetItems() const { return m_Items; }  ///< By rising values.

    // Look ------------------------------------------------------------------------------------------------------------------
    void SetDirection(SliderDirection direction);  ///< Repaints nothing: the caller does.
    int GetState() const;                          ///< Flags of IPainter::ElementState: disabled, focused, hot.

    // Places: own pixels ------------------------------------------------------------------------------------------------------
    int CalcPosByPoint(int point) const;  ///< Pixels along the track; the model's minimum is not subtracted.
    /// The point whose caption lies there, as last drawn; beside all captions the present position.
    int CalcPointByPos(int position);
    rectangle<int> CalcPointerRect(rectangle<int> const& track) const;

public:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    bool HandleKeyDown(int keys, int key) override;
    void HandleMouseHover(CVisualElement* previous) override;
    void HandleMouseLeave(CVisualElement* next) override;

public:  // Overridable
    virtual void DrawBackground(IPainter* painter);

private:
    bool IsCapturing() const;
    rectangle<int> GetTrack() const;
    int GetTrackLength() const;
    int GetOffset(rectangle<int> const& track, int x, int y) const;
    void DrawCaptions(IPainter* painter, rectangle<int> const& track, rectangle<int> const& pointer, int state);
    void UpdateHot();
    void ModelDies(ISliderModel* model);

    int m_Pos = 0;
    ISliderModel* m_Model = &s_DefSliderModel;
    ISliderDrawingModel* m_DrawingModel = &s_DefSliderDrawingModel;
    std::vector<std::pair<double, SItem>> m_Items;
    unsigned m_Readings = 0;  // of the model's points
};

}  // namespace vexel
