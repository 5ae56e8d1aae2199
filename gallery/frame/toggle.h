#pragma once

#include "vexel/core/visual_element.h"

#include <string>

namespace gallery
{

using namespace vexel;

/// A switch: a mark and a text. A click turns it over.
class CToggle : public CVisualElement
{
public:
    CToggle(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::string const& text);

    bool IsOn() const { return m_On; }
    void SetOn(bool on);  ///< Fires m_SigToggled on a change.

    signal_t<CToggle*, bool> m_SigToggled;

protected:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    bool HandleClick(int x, int y, int keys, MouseButton button) override;
    bool HandleKeyDown(int keys, int key) override;

private:
    std::string const m_Text;
    bool m_On = false;
};

}  // namespace gallery
