#pragma once

#include "vexel/platform/qt/detail/native_node.h"

#include <vector>

class QInputMethodEvent;
class QKeyEvent;
class QString;
class QWheelEvent;

namespace vexelbase::qt
{

/// What line edits and combo boxes share: the text, and the events of IEditNotify.
///
/// Every key that goes down fires EditOnKeyDown; unless that cleared the continue flag, return fires EditOnReturnPress
/// and the key goes to Qt. A character fires EditOnChar, byte by byte, before it is taken; one refused byte refuses it.
/// EditOnChangeText fires after every change. The wheel goes on to the window unless the application dealt with it.
template <class Interface> class CQtTextControl : public CQtNativeControl<Interface>
{
public:
    explicit CQtTextControl(CQtWindow& window);

    // From ICustomControl -----------------------------------------------------------------------------------------
    std::string GetText() const override { return m_Text; }
    void Refresh() override;

    // From CQtNativeNode ------------------------------------------------------------------------------------------
    bool HandleEvent(QEvent& event) override;

protected:
    void TakeNaturalSize();
    void VisibleChanged(bool visible) override;
    /// Keeps the text, and fires if it is another one.
    void TextIs(std::string const& text);

    std::string m_Text;

private:
    bool KeyDown(QKeyEvent& event);
    bool Committed(QInputMethodEvent& event);
    bool Wheel(QWheelEvent& event);
    bool AllowsCharacters(QString const& text, int keys);

    int m_WheelRest = 0;
};

extern template class CQtTextControl<IEdit>;
extern template class CQtTextControl<IComboBox>;

/// A QLineEdit.
class CQtEdit final : public CQtTextControl<IEdit>
{
public:
    explicit CQtEdit(CQtWindow& window);
    ~CQtEdit() override;

    // From IEdit --------------------------------------------------------------------------------------------------
    void SetText(std::string const& text) override;
    void SelectAll() override;
    void SetSelection(int start, int length) override;
    void SetReadOnly(bool readOnly) override;
    void SetMaxLength(int characters) override;

private:
    class CField;

    CField* m_Field = nullptr;  // the widget
};

/// A QComboBox. Its option: typed text is completed from the items; on at first.
/// Items, current item and text are kept here, for a text need not be one of the items.
class CQtComboBox final : public CQtTextControl<IComboBox>
{
public:
    CQtComboBox(CQtWindow& window, bool editable);
    ~CQtComboBox() override;

    // From IComboBox ----------------------------------------------------------------------------------------------
    bool IsEditable() const override { return m_Editable; }
    void SetText(std::string const& text) override;
    void ShowDropDown(bool show) override;
    void SetOption(bool option) override;
    void ClearItems() override;
    void AddItem(std::string const& text) override;
    int GetItemCount() const override { return static_cast<int>(m_Items.size()); }
    std::string GetItemText(int index) const override;
    int GetCurrentItem() const override { return m_Current; }
    void SetCurrentItem(int index) override;

protected:
    void Shown() override;
    void VisibleChanged(bool visible) override;

private:
    class CBox;

    void Chosen(int index);
    void ShowState();

    bool const m_Editable;
    CBox* m_Box = nullptr;  // the widget
    std::vector<std::string> m_Items;
    int m_Current = -1;
    bool m_DropWhenShown = false;
    bool m_Showing = false;  // the box is being set by code
};

}  // namespace vexelbase::qt
