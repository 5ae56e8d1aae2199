#pragma once

#include "vexel/core/visual_element.h"

#include <cstdint>
#include <string>

namespace vexel
{

class CButton;

/// A row of buttons, as high as the first one. Invisible until it has one.
class VEXEL_API CButtonSet : public CVisualElement
{
public:
    CButtonSet(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    signal_t<int> m_ButtonPressed;  ///< The number of the button. A slot may clear or delete the set.

    /// Adds a button for each of the bits 1, 2, 4, 8, 16, 32, 64, from the lowest up, numbered by the bit. Captions: see
    /// GetButtonCaptions; "<Unassigned>" where there is none.
    void SetButtons(unsigned int mask);
    /// Adds a button that sizes itself, with a gap before it unless it is the first. Null if a slot ended the set.
    CButton* AddButton(std::string const& caption, int id);
    void ClearButtons();  ///< May be called while one of the buttons is being clicked.
    void ButtonPressed(CButton* button);
    /// Takes the height of the first button; the row takes the width of all. Nothing without a control.
    void UpdateContainerSize();

    CVisualElement* GetContainer() const { return m_Container; }  ///< The buttons' parent; null while there are none.
    std::uint64_t GetButtonCount() const { return m_ButtonCount; }

public:  // From CVisualElement
    void AfterSetControl() override { UpdateContainerSize(); }

private:
    CVisualElement* m_Container = nullptr;
    std::uint64_t m_ButtonCount = 0;
};

}  // namespace vexel
