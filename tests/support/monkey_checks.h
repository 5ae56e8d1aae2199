#pragma once

#include "vexel/core/fwd.h"

#include <map>
#include <string>

namespace vexel::test
{

/// What holds for the controls of all windows, whatever was done to them.
class CMonkeyChecks
{
public:
    /// What a control remembers but doesn't stand in its tree, or went to what can't have it; empty if all is well.
    /// `changed`: the program did something since the last call, so the focus may stand on what can't have it.
    std::string FindStray(bool changed);
    /// What is still pending in a window that was just painted; empty if nothing.
    std::string FindPending() const;

private:
    std::map<IControl const*, CVisualElement const*> m_Focused;
};

}  // namespace vexel::test
