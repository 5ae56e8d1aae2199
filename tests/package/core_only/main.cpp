// A tree of elements on the in-memory backend, with no window system in sight.
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_host.h"

#include <iostream>
#include <string>
#include <typeinfo>

namespace
{

int failures = 0;

void Expect(bool condition, char const* what)
{
    if (condition)
        return;
    std::cerr << "FAILED: " << what << "\n";
    ++failures;
}

/// A black box that counts its clicks, and ends the event there.
class CBox : public vexel::CVisualElement
{
public:
    using CVisualElement::CVisualElement;

    int m_Clicks = 0;
    bool m_Ends = false;

protected:
    void DrawContent(vexel::IPainter* painter) override
    {
        painter->SetBrush({vexel::_color(0xFF000000u)});
        vexel::rectangle<double> const rect = GetDrawRect(painter);
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
    bool HandleClick(int, int, int, vexel::MouseButton) override
    {
        ++m_Clicks;
        if (m_Ends)
            throw vexel::cancel_processing();
        return true;
    }
};

} // namespace

int main()
{
    vexel::test::CTestHost host(100, 40);
    CBox* const box = new CBox(host.Root(), {20, 20}, vexel::alLeft);
    host.Paint();
    Expect(box->GetPos() == vexel::rectangle<int>{0, 0, 20, 39}, "a docked element has its rectangle");
    Expect(host.PixelAt(10, 10).Red() == 0, "it is painted");

    host.Mouse().Click(*box, 5, 5);
    Expect(box->m_Clicks == 1, "a click reaches it");

    // The border between program and library: an exception goes into the library, and is caught by type there; the
    // library's objects have the program's types.
    box->m_Ends = true;
    host.Mouse().Click(*box, 5, 5);
    Expect(box->m_Clicks == 2, "an event that is cancelled ends quietly");
    vexel::CVisualElement const* const found = host.Root()->FindVisualElement(5, 5);
    Expect(dynamic_cast<CBox const*>(found) == box, "the tree gives it back as what it is");
    Expect(typeid(*host.Root()) != typeid(vexel::CVisualElement), "the root is an element of a class of its own");

    std::cout << (failures ? "failed" : "passed") << "\n";
    return failures ? 1 : 0;
}
