#pragma once

#include "vexel/core/visual_element.h"

#include <string>
#include <vector>

namespace gallery
{

using namespace vexel;

/// The names of the pages, one below the other. A click or the arrow keys choose one.
class CPageList : public CVisualElement
{
public:
    CPageList(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::vector<std::string> titles);

    int GetCurrent() const { return m_Current; }
    void SetCurrent(int index);  ///< Cut to the list; fires m_SigChosen on a change.

    signal_t<CPageList*, int> m_SigChosen;

protected:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    void HandleMouseLeave(CVisualElement* next) override;
    bool HandleKeyDown(int keys, int key) override;

private:
    int GetRowHeight() const;
    int GetRowAt(int y) const;  // -1: none
    void SetHot(int row);

    std::vector<std::string> const m_Titles;
    int m_Current = 0;
    int m_Hot = -1;
};

}  // namespace gallery
