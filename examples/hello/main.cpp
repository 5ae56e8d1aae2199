#include "vexel/core/base_control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/qt/application.h"

class CHello : public vexel::CVisualElement
{
public:
    CHello(vexel::CVisualElement* parent, vexel::size<int> const& extent, vexel::Alignment alignment)
        : CVisualElement(parent, extent, alignment)
    {
        m_SigClick.connect(this, &CHello::OnClick);
    }

protected:
    void DrawContent(vexel::IPainter* painter) override
    {
        auto const rect = GetDrawRect(painter);
        int const centered = vexel::IPainter::AlignHCenter | vexel::IPainter::AlignVCenter;
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        painter->DrawString(rect, m_Clicked ? "Thank you" : "Press me", centered, -1);
    }

private:
    void OnClick(vexel::CVisualElement*, int, int, int, vexel::MouseButton)
    {
        m_Clicked = true;
        Update(vexel::utElement);
    }

    bool m_Clicked = false;
};

int main(int argc, char** argv)
{
    vexelbase::qt::CApplication app(argc, argv);
    auto window = app.CreateMainWindow("Hello", {320, 120});
    vexel::CBaseControl control(window.get());
    new CHello(control.GetContent(), {120, 32}, vexel::alTop);  // its parent deletes it
    return app.Run();
}
