// A form: two fields, two buttons, and a line that tells what is missing.

#include "vexel/controls/button.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
#include "vexel/layout/container.h"
#include "vexel/layout/pane.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/qt/application.h"
#include "vexel/signals/connection.h"

#include <string>

namespace
{

using namespace vexel;

/// An element that fills itself with its background.
class CGround : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<double> const rect = GetDrawRect(painter);
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
};

class CForm
{
public:
    CForm(CVisualElement* parent, ISysWindow& window)
        : m_Edit(window.CreateEdit(false)), m_Topics(window.CreateComboBox(false))
    {
        for (char const* topic : {"", "A question", "A fault", "An idea"})
            m_Topics->AddItem(topic);
        m_Topics->SetCurrentItem(0);
        m_Edit->SetMaxLength(40);

        new CGround(parent, {16, 0}, alLeft);
        new CGround(parent, {16, 0}, alRight);
        new CGround(parent, {0, 12}, alTop);
        AddRow(parent, "Name", m_Edit.get());
        AddRow(parent, "Topic", m_Topics.get());

        auto* const buttons = new CGround(parent, {0, 28}, alTop);
        auto* const send = new CButton(buttons, {110, 0}, alRight);
        new CGround(buttons, {10, 0}, alRight);
        auto* const clear = new CButton(buttons, {110, 0}, alRight);
        new CGround(buttons, {0, 0}, alClient);
        send->SetCaption("Send");
        clear->SetCaption("Clear");
        send->SetCanHaveFocus(true);
        clear->SetCanHaveFocus(true);
        m_Message = new CCaption(parent, {0, 0}, alClient);
        m_Message->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);

        m_Send = CConnection(send->m_Clicked, [this](CButton*) { Send(); });
        m_Clear = CConnection(clear->m_Clicked, [this](CButton*) { Clear(); });
    }

private:
    void AddRow(CVisualElement* parent, std::string const& label, ICustomControl* control)
    {
        auto* const row = new CGround(parent, {0, 26}, alTop);
        auto* const caption = new CCaption(row, {90, 0}, alLeft);
        caption->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);
        caption->SetCaption(label);
        auto* const container = new CContainer(row, {0, 0}, alClient);
        container->SetCanHaveFocus(true);
        container->SetNativeControl(control);
        new CGround(parent, {0, 10}, alTop);
    }

    void Send()
    {
        std::string const name = m_Edit->GetText();
        if (name.empty())
            return Tell("A name is missing.", color_table[6]);
        if (m_Topics->GetCurrentItem() < 1)
            return Tell("Please choose a topic.", color_table[6]);
        Tell("Thank you, " + name + ": " + m_Topics->GetItemText(m_Topics->GetCurrentItem()), color_table[1]);
    }

    void Clear()
    {
        m_Edit->SetText("");
        m_Topics->SetCurrentItem(0);
        Tell("", color_table[1]);
    }

    void Tell(std::string const& text, _color const& color)
    {
        m_Message->SetFgColor(color);
        m_Message->SetCaption(text);
    }

    vexel_ptr<IEdit> m_Edit;
    vexel_ptr<IComboBox> m_Topics;
    CCaption* m_Message = nullptr;  // the tree's
    CConnection m_Send;
    CConnection m_Clear;
};

}  // namespace

int main(int argc, char** argv)
{
    vexelbase::qt::CApplication app(argc, argv);
    auto window = app.CreateMainWindow("Form", {420, 200});
    vexel::CBaseControl control(window.get());
    CForm form(control.GetContent(), *window);
    return app.Run();
}
