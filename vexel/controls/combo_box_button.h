#pragma once

#include "vexel/controls/drop_button.h"
#include "vexel/controls/list_box.h"
#include "vexel/core/element_ptr.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/threads.h"

namespace vexel
{

class CBaseControl;

/// A popup with a control in it, and the element that it drops down from.
class VEXEL_API CPopup
{
public:
    vexel_ptr<IPopup> m_Popup;
    CBaseControl* m_Control = nullptr;  ///< Deleted by whoever holds the record, before the popup is let go.
    CVisualElement* m_Owner = nullptr;

    /// Makes popup and control, once; nothing while the owner has no window.
    void AttributeChanged();
    void Show();  ///< Below the owner, or where PositionPopup finds room.
};

/// Emits its signal once, when the queue that it was given to comes to it.
class VEXEL_API CDropDownRunnable : public IRunnable
{
public:
    signal_t<> m_SigRun;

    bool Run() override
    {
        m_SigRun();
        return true;
    }
};

/// A drop button with a list in a popup. The press of any mouse button opens it, and so does alt and down; what is
/// activated in the list becomes the caption.
class VEXEL_API CComboBoxButton : public CDropButton
{
public:
    CComboBoxButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CComboBoxButton() override;

    CListBox* GetList() const { return m_List.get(); }  ///< Owned by the button, later by the popup's control.
    bool IsDropDownShown() const;
    vexel_ptr<IPopup> const& GetPopup() const { return m_DropPopup.m_Popup; }  ///< Null before the first drop-down.

    // The popup's size ------------------------------------------------------------------------------------------------------
    int GetVisibleDropItemsCount() const { return m_VisibleDropItems; }
    void SetVisibleDropItemsCount(int count) { m_VisibleDropItems = count; }  ///< 8 at first; below 1: the size stays.
    int GetVisibleDropWidth() const { return m_VisibleDropWidth; }
    void SetVisibleDropWidth(int pixels) { m_VisibleDropWidth = pixels; }  ///< Below 1, as at first: the button's.
    void UpdateDropSize();

    // Steps -----------------------------------------------------------------------------------------------------------------
    void ScheduleDropDown();        ///< The popup opens after the present event.
    void UpdateCaption(int index);  ///< Takes the text of the list's row. Nothing where there is no such row.
    void ProcessMouseDown(CVisualElement*, int, int, int, MouseButton) { ScheduleDropDown(); }
    void ProcessDropDown(CDropButton*) { ScheduleDropDown(); }
    void ProcessClosePopup(int index);  ///< A row was activated.

public:  // Overridable
    virtual void DoDropDown();

private:
    bool PreparePopup();
    void ReleasePopup();

    CPopup m_DropPopup;
    CElementPtr<CListBox> m_List;
    int m_VisibleDropItems = 8;
    int m_VisibleDropWidth = 0;
    bool m_ListOwned = true;
};

}  // namespace vexel
