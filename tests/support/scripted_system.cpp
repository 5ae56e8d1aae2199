#include "tests/support/scripted_system.h"

using namespace vexelbase;

CScriptedSystem::CScriptedSystem(double scale) : m_Before(SetCurrentSystem(this)), m_Scale(scale)
{
    m_Font.name = "Default";
    m_Font.family = font::ffSans;
    m_Font.size = 8;
    RefreshDefaultGUIFont();
}

CScriptedSystem::~CScriptedSystem()
{
    SetCurrentSystem(m_Before);
    RefreshDefaultGUIFont();
}

void CScriptedSystem::SetScale(double scale)
{
    m_Scale = scale;
    RefreshDefaultGUIFont();
}

void CScriptedSystem::SetDefaultFont(font const& value)
{
    m_Font = value;
    RefreshDefaultGUIFont();
}
