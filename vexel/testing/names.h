#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

#include <string>
#include <typeinfo>

namespace vexel::test
{

/// The name of a type as tests print it: without namespaces, also inside template arguments and for classes that are
/// local to a test. "vexel::CTransparentFlavor<vexel::CVisualElement>" is "CTransparentFlavor<CVisualElement>".
VEXEL_TESTING_API std::string TypeName(std::type_info const& type);

/// Gives an element a name that all logs print from now on in place of its class. The name goes with the element, at the
/// latest with the test.
VEXEL_TESTING_API void NameElement(CVisualElement const& element, std::string const& name);

/// The element's given name, else that of its class; "null" for null.
VEXEL_TESTING_API std::string ElementName(CVisualElement const* element);

/// "vexel::A<vexel::B>::C" is "C" of "A": the spelling rule of TypeName, for a demangled name.
VEXEL_TESTING_API std::string StripNamespaces(std::string const& demangled);

} // namespace vexel::test
