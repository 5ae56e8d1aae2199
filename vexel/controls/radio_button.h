#pragma once

#include "vexel/controls/check_box.h"

#include <vector>

namespace vexel
{

/// A check box that a click only switches on. Its group switches it off.
class VEXEL_API CRadioButton : public CCheckBox
{
public:
    using CCheckBox::CCheckBox;

public:  // From CCheckBox
    int DrawCheckImage(IPainter* painter) override;
    bool ChangeAllowed() const override { return !IsChecked(); }
    std::string HandleAsString() const override;  ///< "(*) " or "( ) " and the caption.
};

/// Keeps at most one of several radio buttons on. Belongs to no tree; slots may delete it.
class VEXEL_API CRadioGroup : public subscriber_base_t
{
public:
    CRadioGroup() = default;
    CRadioGroup(CRadioGroup const&) = delete;
    CRadioGroup& operator=(CRadioGroup const&) = delete;
    ~CRadioGroup() override;

    signal_t<CRadioGroup*, int> m_CurrentChanged;  ///< Once for each change; -1: none is current any more.

    /// Not owned; one that dies leaves the group, and m_CurrentChanged doesn't tell. The first that is on becomes the current one, any other is switched
    /// off. Null and one that is in the group already are ignored.
    void Add(CRadioButton* button);
    int GetCount() const { return static_cast<int>(m_Buttons.size()); }
    CRadioButton* GetButton(int index) const;  ///< In the order in which they were added; null outside.
    int GetCurrent() const { return m_Current; }
    void SetCurrent(int index);  ///< Outside of the group: none.

    void HandleChecked(CCheckBox* box);  ///< A button was switched on: the others go off.

private:
    void ButtonDies(CVisualElement* button);
    void ChangeCurrent(int index);

    std::vector<CRadioButton*> m_Buttons;
    int m_Current = -1;
};

}  // namespace vexel
