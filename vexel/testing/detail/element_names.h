#pragma once

namespace vexel
{
class CVisualElement;
}

namespace vexel::test::detail
{

void ForgetElementName(CVisualElement const* element);
void ForgetElementNames();

} // namespace vexel::test::detail
