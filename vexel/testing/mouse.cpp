#include "vexel/testing/mouse.h"

#include "vexel/testing/test_host.h"

#include "vexel/platform/memory/memory_system.h"

namespace vexel::test
{

namespace
{

std::string Numbered(char const* verb, int number)
{
    return std::string(verb) + " " + std::to_string(number);
}

} // namespace

vexelbase::point<int> CMouse::ToControl(CVisualElement const& element, int x, int y) const
{
    return m_Host.ToControl(element, x, y);
}

// Where ------------------------------------------------------------------------------------------------------------

void CMouse::Move(int x, int y)
{
    point<int> position{x, y};
    if (!m_Host.HasWindow() || GetPos() == position)
        return;
    m_Host.Script().Add("move " + std::to_string(x) + " " + std::to_string(y));
    m_Host.Window().ClientToScreen(&position);
    m_Host.System().MovePointer(position);
}

void CMouse::Move(CVisualElement const& element, int x, int y)
{
    point<int> const position = ToControl(element, x, y);
    Move(position.x, position.y);
}

void CMouse::Leave()
{
    m_Host.Script().Add("leave");
    m_Host.System().MovePointer({-1, -1});
}

vexelbase::point<int> CMouse::GetPos() const
{
    point<int> position = m_Host.System().GetPointerPos();
    if (m_Host.HasWindow())
        m_Host.Window().ScreenToClient(&position);
    return position;
}

// Buttons ----------------------------------------------------------------------------------------------------------

void CMouse::Press(vexelbase::MouseButton button)
{
    m_Host.Script().Add(Numbered("press", button));
    m_Host.System().PressButton(button);
}

void CMouse::Press(int x, int y, vexelbase::MouseButton button)
{
    Move(x, y);
    Press(button);
}

void CMouse::Press(CVisualElement const& element, int x, int y, vexelbase::MouseButton button)
{
    Move(element, x, y);
    Press(button);
}

void CMouse::Release(vexelbase::MouseButton button)
{
    m_Host.Script().Add(Numbered("release", button));
    m_Host.System().ReleaseButton(button);
}

void CMouse::Release(int x, int y, vexelbase::MouseButton button)
{
    Move(x, y);
    Release(button);
}

void CMouse::Release(CVisualElement const& element, int x, int y, vexelbase::MouseButton button)
{
    Move(element, x, y);
    Release(button);
}

void CMouse::Click(vexelbase::MouseButton button)
{
    Press(button);
    Release(button);
}

void CMouse::Click(int x, int y, vexelbase::MouseButton button)
{
    Move(x, y);
    Click(button);
}

void CMouse::Click(CVisualElement const& element, int x, int y, vexelbase::MouseButton button)
{
    Move(element, x, y);
    Click(button);
}

void CMouse::DoubleClick(vexelbase::MouseButton button)
{
    Click(button);
    PressAgain(button);
    Release(button);
}

void CMouse::DoubleClick(int x, int y, vexelbase::MouseButton button)
{
    Move(x, y);
    DoubleClick(button);
}

void CMouse::DoubleClick(CVisualElement const& element, int x, int y, vexelbase::MouseButton button)
{
    Move(element, x, y);
    DoubleClick(button);
}

void CMouse::PressAgain(vexelbase::MouseButton button)
{
    m_Host.Script().Add(Numbered("double", button));
    m_Host.System().PressButton(button, true);
}

bool CMouse::IsHeld(vexelbase::MouseButton button) const
{
    return m_Host.System().IsButtonHeld(button);
}

void CMouse::LoseRelease(vexelbase::MouseButton button)
{
    m_Host.Script().Add(Numbered("lose", button));
    m_Host.System().DropButton(button);
}

void CMouse::Drag(int fromX, int fromY, int toX, int toY, int steps)
{
    Press(fromX, fromY);
    for (int i = 1; i <= steps; ++i)
        Move(fromX + (toX - fromX) * i / steps, fromY + (toY - fromY) * i / steps);
}

void CMouse::Drag(CVisualElement const& element, int fromX, int fromY, int toX, int toY, int steps)
{
    // Worked out first: the element may move on the way.
    point<int> const from = ToControl(element, fromX, fromY);
    point<int> const to = ToControl(element, toX, toY);
    Drag(from.x, from.y, to.x, to.y, steps);
}

// The rest ---------------------------------------------------------------------------------------------------------

void CMouse::Wheel(int notches)
{
    m_Host.Script().Add(Numbered("wheel", notches));
    m_Host.System().TurnWheel(notches);
}

void CMouse::Wheel(int x, int y, int notches)
{
    Move(x, y);
    Wheel(notches);
}

void CMouse::Wheel(CVisualElement const& element, int x, int y, int notches)
{
    Move(element, x, y);
    Wheel(notches);
}

void CMouse::Hover()
{
    m_Host.Script().Add("hover");
    m_Host.System().RestPointer();
}

void CMouse::Hover(int x, int y)
{
    Move(x, y);
    Hover();
}

void CMouse::Hover(CVisualElement const& element, int x, int y)
{
    Move(element, x, y);
    Hover();
}

} // namespace vexel::test
