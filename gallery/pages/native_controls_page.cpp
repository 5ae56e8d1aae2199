#include "gallery/pages/native_controls_page.h"

#include "gallery/frame/log.h"
#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/layout/container.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"
#include "vexel/signals/notify.h"

#include <sstream>
#include <string>

namespace gallery
{

namespace
{

class CEditLog : public CEditNotify
{
public:
    CEditLog(std::string name, ICustomControl& control) : m_Name(std::move(name)), m_Control(control) {}

private:
    void EditOnChangeText(CChangeTextEvent*) override { Write("changeText(\"" + m_Control.GetText() + "\")"); }
    void EditOnKeyDown(CEditKeyDownEvent* event) override
    {
        Write("keyDown(" + std::to_string(event->m_VirtualKey) + ")");
    }
    void EditOnReturnPress(CEvent*) override { Write("returnPress"); }
    void Write(std::string const& what) { CLog::Get().Write(m_Name + "." + what); }

    std::string const m_Name;
    ICustomControl& m_Control;
};

class CScrollLog : public CScrollBarNotify
{
public:
    explicit CScrollLog(std::string name) : m_Name(std::move(name)) {}

private:
    void ScrollBarOnScroll(CScrollEvent* event) override
    {
        std::ostringstream line;
        line << m_Name << ".scroll(" << event->m_Position << ", " << event->m_Action << ')';
        CLog::Get().Write(line.str());
    }

    std::string const m_Name;
};

}  // namespace

/// What the page keeps of its controls.
class CNativeControlsPage::CImp : public subscriber_base_t
{
public:
    void Build(CVisualElement* parent);

private:
    CPanel* Row(CVisualElement* parent, std::string const& caption, int height);
    void Host(CVisualElement* row, ICustomControl* control);
    void OpenPopup(CVisualElement* element, int, int, int, MouseButton);
    void ClosePopup(CVisualElement*, int, int, int, MouseButton);

    std::vector<std::unique_ptr<INotify>> m_Logs;
    vexel_ptr<IPopup> m_Popup;
    std::unique_ptr<CBaseControl> m_Inside;  // the popup's; goes first
};

CPanel* CNativeControlsPage::CImp::Row(CVisualElement* parent, std::string const& caption, int height)
{
    auto* const gap = new CPanel(parent, {0, 8}, alTop);
    gap->SetText("");
    auto* const row = new CPanel(parent, {0, height}, alTop);
    row->SetText("");
    new CLabel(row, {170, 0}, alLeft, caption);
    return row;
}

void CNativeControlsPage::CImp::Host(CVisualElement* row, ICustomControl* control)
{
    auto* const host = new CContainer(row, {240, 0}, alLeft);
    host->SetCanHaveFocus(true);
    host->SetNativeControl(control);
}

void CNativeControlsPage::CImp::Build(CVisualElement* parent)
{
    ISysWindow* const window = parent->GetControl() ? parent->GetControl()->GetWindow() : nullptr;
    if (!window)
        return;

    auto const edit = window->CreateEdit(false);
    if (edit)
    {
        edit->SetText("A line of text");
        m_Logs.push_back(std::make_unique<CEditLog>("edit", *edit));
        edit->Subscribe(m_Logs.back().get(), typeid(IEditNotify), true);
        Host(Row(parent, "Edit", 28), edit.get());
    }
    CPanel* const between = Row(parent, "An element between", 28);
    (new CToggle(between, {240, 0}, alLeft, "Tab stops here too"))->SetCanHaveFocus(true);
    for (bool const editable : {true, false})
    {
        auto const box = window->CreateComboBox(editable);
        if (!box)
            continue;
        for (char const* item : {"Spring", "Summer", "Autumn", "Winter"})
            box->AddItem(item);
        box->SetCurrentItem(1);
        m_Logs.push_back(std::make_unique<CEditLog>(editable ? "editableBox" : "box", *box));
        box->Subscribe(m_Logs.back().get(), typeid(IEditNotify), true);
        Host(Row(parent, editable ? "Combo box, editable" : "Combo box", 28), box.get());
    }
    for (int const type : {ISysWindow::stHorizontal, ISysWindow::stVertical})
    {
        auto const bar = window->CreateScrollBar(type);
        if (!bar)
            continue;
        SScrollBarInfo info;
        info.maximum = 1000;
        info.page = 100;
        info.lineStep = 10;
        bar->SetInfo(info);
        bool const lying = type == ISysWindow::stHorizontal;
        m_Logs.push_back(std::make_unique<CScrollLog>(lying ? "horizontalBar" : "verticalBar"));
        bar->Subscribe(m_Logs.back().get(), typeid(IScrollBarNotify), true);
        CPanel* const row = Row(parent, lying ? "Scroll bar, horizontal" : "Scroll bar, vertical", lying ? 20 : 140);
        auto* const host = new CContainer(row, {lying ? 240 : 20, 0}, alLeft);
        host->SetNativeControl(bar.get());
        if (!lying)
            host->FitWidth();
    }
    CPanel* const last = Row(parent, "Popup", 28);
    auto* const button = new CPanel(last, {240, 0}, alLeft);
    button->SetText("Press to open");
    button->SetFrame(true);
    button->m_SigButtonDown.connect(this, &CImp::OpenPopup);
}

void CNativeControlsPage::CImp::OpenPopup(CVisualElement* element, int, int, int, MouseButton)
{
    ISysWindow* const window = element->GetControl() ? element->GetControl()->GetWindow() : nullptr;
    if (!window)
        return;
    if (!m_Popup)
    {
        m_Popup = window->CreatePopup();
        if (!m_Popup)
            return;
        m_Inside = std::make_unique<CBaseControl>(m_Popup->GetWindow());
        auto* const panel = new CPanel(m_Inside->GetContent(), {0, 0}, alClient);
        panel->SetText("Press here, beside it, or Escape");
        panel->SetFrame(true);
        panel->m_SigButtonDown.connect(this, &CImp::ClosePopup);
    }
    rectangle<int> place = element->GetBounds();
    element->ElementToControl(&place);
    m_Popup->SetSize(place.Width(), 3 * place.Height());
    CLog::Get().Write("popup.open");
    PositionPopup(m_Popup, {place.left, place.top, place.right, place.bottom});
}

void CNativeControlsPage::CImp::ClosePopup(CVisualElement*, int, int, int, MouseButton)
{
    CLog::Get().Write("popup.close(1)");
    m_Popup->Close(1);
}

CNativeControlsPage::CNativeControlsPage() : m_Imp(std::make_unique<CImp>()) {}

CNativeControlsPage::~CNativeControlsPage() = default;

void CNativeControlsPage::Build(CVisualElement* parent)
{
    m_Imp->Build(parent);
}

}  // namespace gallery
