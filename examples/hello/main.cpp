#include "vexel/controls/button.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/qt/application.h"
#include "vexel/signals/connection.h"

int main(int argc, char** argv)
{
    vexelbase::qt::CApplication app(argc, argv);
    auto window = app.CreateMainWindow("Hello", {320, 120});
    vexel::CBaseControl control(window.get());
    auto* button = new vexel::CButton(control.GetContent(), {120, 32}, vexel::alTop);  // its parent deletes it
    button->SetCaption("Press me");
    vexel::CConnection pressed(button->m_Clicked, [&](vexel::CButton*) { button->SetCaption("Thank you"); });
    return app.Run();
}
