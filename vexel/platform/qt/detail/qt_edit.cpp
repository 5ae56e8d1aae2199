#include "vexel/platform/qt/detail/qt_edit.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/events.h"
#include "vexel/platform/qt/detail/font_face.h"
#include "vexel/platform/qt/detail/qt_input.h"
#include "vexel/platform/qt/detail/qt_keys.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_window.h"
#include "vexel/signals/notify.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace vexelbase::qt
{

namespace
{

constexpr int FirstWidth = 100;  // of a new control, unscaled pixels

// Where the character of this index begins in the string; its end where there are fewer.
int PlaceOf(QString const& text, int character)
{
    int place = 0;
    for (; character > 0 && place < text.size(); --character)
        place += text.at(place).isHighSurrogate() && place + 1 < text.size() ? 2 : 1;
    return place;
}

}  // namespace

// CQtTextControl ---------------------------------------------------------------------------------------------------

template <class Interface>
CQtTextControl<Interface>::CQtTextControl(CQtWindow& window) : CQtNativeControl<Interface>(window)
{
    this->SetSupportedEvent(typeid(IEditNotify));
}

template <class Interface> void CQtTextControl<Interface>::TakeNaturalSize()
{
    this->Place({0, 0, ToInt(FirstWidth * this->GetScale()), 0});
    CQtTextControl::Refresh();
}

template <class Interface> void CQtTextControl<Interface>::Refresh()
{
    rectangle<int> rect = this->GetPlace();
    rect.bottom = AddSaturated(rect.top, this->GetNaturalSize().height);
    this->Place(rect);
}

template <class Interface> void CQtTextControl<Interface>::TextIs(std::string const& text)
{
    if (text == m_Text)
        return;
    m_Text = text;
    CChangeTextEvent event;
    this->Do([&] { Fire<&IEditNotify::EditOnChangeText>(*this, &event, true); });
}

template <class Interface> void CQtTextControl<Interface>::VisibleChanged(bool)
{
    CVisibleChangeEvent event;
    this->Do([&] { Fire<&IEditNotify::EditOnVisibleChange>(*this, &event, true); });
}

template <class Interface> bool CQtTextControl<Interface>::HandleEvent(QEvent& event)
{
    switch (event.type())
    {
    case QEvent::KeyPress:
        return KeyDown(static_cast<QKeyEvent&>(event));
    case QEvent::InputMethod:
        return Committed(static_cast<QInputMethodEvent&>(event));
    case QEvent::Wheel:
        return Wheel(static_cast<QWheelEvent&>(event));
    default:
        return CQtNativeControl<Interface>::HandleEvent(event);
    }
}

template <class Interface> bool CQtTextControl<Interface>::KeyDown(QKeyEvent& event)
{
    int const key = ToVirtualKey(event);
    int keys = ToKeyState(event.modifiers(), QGuiApplication::mouseButtons());
    if (event.key() == Qt::Key_Backtab)
        keys |= ksShift;

    event.accept();
    CEditKeyDownEvent down(keys, key);
    this->Do([&] { Fire<&IEditNotify::EditOnKeyDown>(*this, &down, true); });
    if (!down.IsContinue())
        return true;
    if (key == vkTab && (keys & (ksControl | ksAlt)) == 0)
    {
        if (CQtWindow* const window = this->GetWindow())
            window->TabFromNative(*this, keys);
        return true;
    }
    if (key == vkReturn)
    {
        CEvent pressed;
        this->Do([&] { Fire<&IEditNotify::EditOnReturnPress>(*this, &pressed, true); });
        if (!pressed.IsContinue())
            return true;
    }
    int const commands = keys & (ksControl | ksAlt);
    bool const types = commands == 0 || commands == (ksControl | ksAlt);
    return types && !AllowsCharacters(event.text(), keys);
}

template <class Interface> bool CQtTextControl<Interface>::AllowsCharacters(QString const& text, int keys)
{
    QByteArray const bytes = CQtInput::GetPrintable(text).toUtf8();
    for (char const byte : bytes)
    {
        CEditKeyDownEvent character(keys, 0, byte);
        this->Do([&] { Fire<&IEditNotify::EditOnChar>(*this, &character, true); });
        if (!character.IsContinue())
            return false;
    }
    return true;
}

// What an input method has composed. Refused, it leaves the composition empty.
template <class Interface> bool CQtTextControl<Interface>::Committed(QInputMethodEvent& event)
{
    int const keys = ToKeyState(QGuiApplication::keyboardModifiers(), QGuiApplication::mouseButtons());
    if (!AllowsCharacters(event.commitString(), keys))
        event.setCommitString(QString());
    return false;
}

template <class Interface> bool CQtTextControl<Interface>::Wheel(QWheelEvent& event)
{
    int const notches = CQtInput::TakeNotches(m_WheelRest, CQtInput::GetWheelDelta(event));
    CEditMouseWheelEvent wheel;
    wheel.m_Delta = notches;
    if (notches != 0)
        this->Do([&] { Fire<&IEditNotify::EditOnMouseWheel>(*this, &wheel, true); });
    event.setAccepted(!wheel.IsContinue());
    return true;
}

template class CQtTextControl<IEdit>;
template class CQtTextControl<IComboBox>;

// CQtEdit ----------------------------------------------------------------------------------------------------------

class CQtEdit::CField final : public CNativeWidget<QLineEdit>
{
public:
    using CNativeWidget<QLineEdit>::CNativeWidget;
};

CQtEdit::CQtEdit(CQtWindow& window) : CQtTextControl<IEdit>(window)
{
    m_Field = new CField(window.GetWidget());
    m_Field->setMaxLength(std::numeric_limits<int>::max());
    Take(m_Field, *m_Field);
    QObject::connect(m_Field, &QLineEdit::textChanged, m_Field, [this, field = m_Field](QString const& text) {
        CInQt const inside;
        if (field->owner)
            TextIs(text.toStdString());
    });
    TakeNaturalSize();
    Listen();
}

CQtEdit::~CQtEdit()
{
    GiveUp();
}

void CQtEdit::SetText(std::string const& text)
{
    if (text == m_Text)
        return;
    vexel_ptr<CBase> const alive(this);
    if (GetWidget())
        m_Field->setText(ToQString(text));
    else
        TextIs(text);
}

void CQtEdit::SelectAll()
{
    if (GetWidget())
        m_Field->selectAll();
}

void CQtEdit::SetSelection(int start, int length)
{
    if (!GetWidget())
        return;
    QString const text = m_Field->text();
    int const first = std::max(start, 0);
    int const from = PlaceOf(text, first);
    int const to = PlaceOf(text, AddSaturated(first, std::max(length, 0)));
    if (to > from)
    {
        m_Field->setSelection(from, to - from);
    }
    else
    {
        m_Field->deselect();
        m_Field->setCursorPosition(from);
    }
}

void CQtEdit::SetReadOnly(bool readOnly)
{
    if (GetWidget())
        m_Field->setReadOnly(readOnly);
}

void CQtEdit::SetMaxLength(int characters)
{
    if (!GetWidget())
        return;
    // Qt would cut what stands there already.
    int const limit = characters < 1 ? std::numeric_limits<int>::max()
                                     : std::max(characters, static_cast<int>(m_Field->text().size()));
    if (limit != m_Field->maxLength())
    {
        int const caret = m_Field->cursorPosition();
        m_Field->setMaxLength(limit);
        m_Field->setCursorPosition(caret);
    }
}

// CQtComboBox ------------------------------------------------------------------------------------------------------

class CQtComboBox::CBox final : public CNativeWidget<QComboBox>
{
public:
    using CNativeWidget<QComboBox>::CNativeWidget;

    QString m_ShownText;  // of a box that can only choose

    // Where a button is down it opens as by a press of the box, so that the release neither closes nor chooses.
    void OpenList()
    {
        if (QGuiApplication::mouseButtons() != Qt::NoButton)
        {
            QStyleOptionComboBox option;
            initStyleOption(&option);
            QPointF const arrow =
                style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
            QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            mousePressEvent(&press);
        }
        if (!view()->isVisible())
            showPopup();
    }

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override
    {
        CNativeWidget<QComboBox>::initStyleOption(option);
        if (!isEditable())
            option->currentText = m_ShownText;
    }
};

CQtComboBox::CQtComboBox(CQtWindow& window, bool editable) : CQtTextControl<IComboBox>(window), m_Editable(editable)
{
    m_Box = new CBox(window.GetWidget());
    m_Box->setEditable(editable);
    m_Box->setInsertPolicy(QComboBox::NoInsert);
    m_Box->setDuplicatesEnabled(true);
    m_Box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Take(m_Box, *m_Box);
    QObject::connect(m_Box, &QComboBox::activated, m_Box, [this, box = m_Box](int index) {
        CInQt const inside;
        if (box->owner)
            Chosen(index);
    });
    if (editable)
    {
        m_Box->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
        QObject::connect(m_Box->lineEdit(), &QLineEdit::textChanged, m_Box, [this, box = m_Box](QString const& text) {
            CInQt const inside;
            if (!box->owner || m_Showing)
                return;
            m_Current = box->currentIndex();
            TextIs(text.toStdString());
        });
    }
    TakeNaturalSize();
    Listen();
}

CQtComboBox::~CQtComboBox()
{
    GiveUp();
}

// Brings the box to what is kept here. Qt ties the text to the items, which the text is free of.
void CQtComboBox::ShowState()
{
    if (!GetWidget())
        return;
    bool const before = std::exchange(m_Showing, true);
    {
        QSignalBlocker const quiet(m_Box);
        m_Box->setCurrentIndex(m_Current);
    }
    QString const text = ToQString(m_Text);
    if (m_Editable && m_Box->lineEdit()->text() != text)
        m_Box->lineEdit()->setText(text);
    if (!m_Editable && m_Box->m_ShownText != text)
    {
        m_Box->m_ShownText = text;
        m_Box->update();
    }
    m_Showing = before;
}

void CQtComboBox::SetText(std::string const& text)
{
    if (text == m_Text)
        return;
    vexel_ptr<CBase> const alive(this);
    std::string const before = std::exchange(m_Text, text);
    ShowState();
    m_Text = before;
    TextIs(text);
}

std::string CQtComboBox::GetItemText(int index) const
{
    return index >= 0 && index < GetItemCount() ? m_Items[static_cast<std::size_t>(index)] : std::string();
}

void CQtComboBox::ClearItems()
{
    m_Items.clear();
    m_Current = -1;
    if (!GetWidget())
        return;
    bool const before = std::exchange(m_Showing, true);
    {
        QSignalBlocker const quiet(m_Box);
        m_Box->clear();
    }
    m_Showing = before;
    ShowState();
}

void CQtComboBox::AddItem(std::string const& text)
{
    m_Items.push_back(text);
    if (!GetWidget())
        return;
    bool const before = std::exchange(m_Showing, true);
    {
        QSignalBlocker const quiet(m_Box);
        m_Box->addItem(ToQString(text));
    }
    m_Showing = before;
    if (m_Items.size() == 1)
        ShowState();  // Qt makes the first one current
}

void CQtComboBox::SetCurrentItem(int index)
{
    m_Current = index >= 0 && index < GetItemCount() ? index : -1;
    if (m_Current >= 0 && GetItemText(m_Current) != m_Text)
        SetText(GetItemText(m_Current));
    else
        ShowState();
}

// By the user, from the list or with keys.
void CQtComboBox::Chosen(int index)
{
    vexel_ptr<CBase> const alive(this);
    SetCurrentItem(index);
}

void CQtComboBox::SetOption(bool option)
{
    if (!m_Editable || !GetWidget())
        return;
    if (!option)
        m_Box->setCompleter(nullptr);
    else if (!m_Box->completer())
        m_Box->setCompleter(new QCompleter(m_Box->model(), m_Box));
}

void CQtComboBox::ShowDropDown(bool show)
{
    m_DropWhenShown = show && GetWidget() && !IsShown();
    if (!GetWidget() || !IsShown())
        return;
    vexel_ptr<CBase> const alive(this);
    if (show)
        m_Box->OpenList();
    else
        m_Box->hidePopup();
}

void CQtComboBox::Shown()
{
    if (std::exchange(m_DropWhenShown, false) && GetWidget())
    {
        // After the show has ended, for the list is a window of its own.
        QMetaObject::invokeMethod(
            m_Box,
            [box = m_Box] {
                if (box->owner && box->isVisible())
                    box->OpenList();
            },
            Qt::QueuedConnection);
    }
}

void CQtComboBox::VisibleChanged(bool visible)
{
    if (!visible)
        m_DropWhenShown = false;
    CQtTextControl<IComboBox>::VisibleChanged(visible);
}

}  // namespace vexelbase::qt
