#include "vexel/core/element_observer.h"

#include <utility>

namespace vexel
{

namespace detail
{
IElementObserver* g_ElementObserver = nullptr;
}

IElementObserver::~IElementObserver() = default;

IElementObserver* SetElementObserver(IElementObserver* observer)
{
    return std::exchange(detail::g_ElementObserver, observer);
}

}  // namespace vexel
