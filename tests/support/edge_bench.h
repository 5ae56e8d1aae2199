#pragma once

#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

namespace vexel::test
{

/// An element that fills itself with its background.
class CSheet : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        painter->FillRect(0, 0, rect.right, rect.bottom);
    }
};

/// A strip on a window of 200 x 200, 20 pixels thick and 199 long on whichever side it stands, and the user's mouse on it.
class CEdgeBench : public testing::Test
{
protected:
    virtual CTestHost& GetHost() = 0;  // the subclass's, as its models outlive it
    virtual CVisualElement& GetStrip() const = 0;

    // Places along the strip, 10 pixels in
    bool IsUpright() const { return GetStrip().GetAlignment() == alLeft || GetStrip().GetAlignment() == alRight; }
    point<int> At(int along, int across = 10) const
    {
        return IsUpright() ? point<int>{across, along} : point<int>{along, across};
    }
    rectangle<int> Span(int from, int to) const  ///< As thick as the strip.
    {
        return IsUpright() ? rectangle<int>{0, from, 20, to} : rectangle<int>{from, 0, to, 20};
    }
    void Move(int along, int across = 10)
    {
        point<int> const where = At(along, across);
        GetHost().Mouse().Move(GetStrip(), where.x, where.y);
    }
    void Release(MouseButton button = mbLeft) { GetHost().Mouse().Release(button); }
    CVisualElement* Captured() { return GetHost().Control().GetControl()->GetCapture(); }
    CVisualElement* Dragged() { return GetHost().Control().GetControl()->GetDraggedElement(); }
};

}  // namespace vexel::test
