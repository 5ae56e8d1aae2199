#pragma once

#include "vexel/export.h"
#include "vexel/platform/memory/line_text.h"
#include "vexel/platform/memory/native_control.h"

namespace vexelbase::memory
{

/// What line edits and editable combo boxes share: a line of text under the keyboard, and the events of IEditNotify.
///
/// Every key that goes down fires EditOnKeyDown; unless that cleared the continue flag, return fires EditOnReturnPress
/// and the other keys edit. A character fires EditOnChar before it is taken. EditOnChangeText fires after every change.
template <class Interface> class VEXEL_MEMORY_API CMemoryTextControl : public CMemoryNativeControl<Interface>
{
public:
    CMemoryTextControl(CMemorySystem& system, CMemoryNode& window);

    CLineText const& GetLine() const { return m_Line; }

    // From ICustomControl -----------------------------------------------------------------------------------------
    void SetText(std::string const& text) override;
    std::string GetText() const override { return m_Line.GetText(); }
    void Refresh() override;  ///< As high as a line of the default font and four pixels above and below.

    // From CMemoryNode --------------------------------------------------------------------------------------------
    bool NodeKeyDown(CKeyboardEvent& event) override;
    void NodeChar(CKeyboardEvent& event) override;
    void NodeWheel(CMouseWheelEvent& event) override;

protected:
    void VisibleChanged(bool visible) override;
    void TextChanged();
    virtual bool IsTypingAllowed() const { return true; }
    /// A key that neither the application nor the line dealt with.
    virtual bool OtherKey(CKeyboardEvent const&) { return false; }

    CLineText m_Line;

private:
    bool EditingKey(CKeyboardEvent const& event);
};

extern template class VEXEL_MEMORY_API CMemoryTextControl<IEdit>;
extern template class VEXEL_MEMORY_API CMemoryTextControl<IComboBox>;

/// A line edit.
class VEXEL_MEMORY_API CMemoryEdit final : public CMemoryTextControl<IEdit>
{
public:
    CMemoryEdit(CMemorySystem& system, CMemoryNode& window) : CMemoryTextControl<IEdit>(system, window) {}

    bool IsReadOnly() const { return m_ReadOnly; }

    // From IEdit --------------------------------------------------------------------------------------------------
    void SelectAll() override { m_Line.Select(0, m_Line.GetLength()); }
    void SetSelection(int start, int length) override { m_Line.Select(start, length); }
    void SetReadOnly(bool readOnly) override { m_ReadOnly = readOnly; }
    void SetMaxLength(int characters) override { m_Line.SetMaxLength(characters); }

protected:
    bool IsTypingAllowed() const override { return !m_ReadOnly; }

private:
    bool m_ReadOnly = false;
};

/// A combo box. Up and down take the next item, with alt they open and close the list.
class VEXEL_MEMORY_API CMemoryComboBox final : public CMemoryTextControl<IComboBox>
{
public:
    CMemoryComboBox(CMemorySystem& system, CMemoryNode& window, bool editable)
        : CMemoryTextControl<IComboBox>(system, window), m_Editable(editable)
    {
    }

    bool IsDropDownShown() const { return m_Dropped; }
    int GetDropDownCount() const { return m_DropCount; }  ///< How often the list was opened.
    bool GetOption() const { return m_Option; }
    /// The user takes an item of the open or closed list: it becomes the current one, its text the text; the list closes.
    void Choose(int index);

    // From IComboBox ----------------------------------------------------------------------------------------------
    bool IsEditable() const override { return m_Editable; }
    void ShowDropDown(bool show) override;
    void SetOption(bool option) override { m_Option = option; }
    void ClearItems() override;
    void AddItem(std::string const& text) override { m_Items.push_back(text); }
    int GetItemCount() const override { return static_cast<int>(m_Items.size()); }
    std::string GetItemText(int index) const override;
    int GetCurrentItem() const override { return m_Current; }
    void SetCurrentItem(int index) override;

    // From CMemoryNode --------------------------------------------------------------------------------------------
    void NodeButtonDown(CMouseEvent& event, bool doubled) override;
    void NodeFocus(bool has) override;

protected:
    bool IsTypingAllowed() const override { return m_Editable; }
    bool OtherKey(CKeyboardEvent const& event) override;
    void VisibleChanged(bool visible) override;

private:
    bool const m_Editable;
    bool m_Option = true;
    bool m_Dropped = false;
    int m_DropCount = 0;
    int m_Current = -1;
    std::vector<std::string> m_Items;
};

} // namespace vexelbase::memory
