#pragma once

#include "tests/support/slot.h"
#include "vexel/core/visual_element.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// What scenes share in which a slot does a misdeed: the signals by name, and which elements still live.
class CDeedScene
{
public:
    using Deed = std::function<void()>;

    /// For each signal: has the deed done whenever it fires, as long as the answer lives.
    std::map<std::string, std::function<std::unique_ptr<subscriber_base_t>(Deed const&)>> m_Connect;

protected:
    template <class... A> void On(std::string const& name, auto& signal)
    {
        m_Connect[name] = [&signal](Deed const& deed) {
            auto slot = std::make_unique<CSlot<A...>>([deed](A...) {
                auto const copy = deed;  // it may end this slot
                copy();
            });
            signal.connect(slot.get(), &CSlot<A...>::Call);
            return std::unique_ptr<subscriber_base_t>(std::move(slot));
        };
    }
    /// From now on it is known whether they live; `died` hears of each that doesn't any more.
    void WatchElements(std::initializer_list<CVisualElement*> elements,
                       std::function<void(CVisualElement*)> const& died)
    {
        for (CVisualElement* const element : elements)
        {
            m_Alive.insert(element);
            m_Watches.push_back(Listen(element->m_SigDestroy, [this, died](CVisualElement* dead) {
                m_Alive.erase(dead);
                died(dead);
            }));
        }
    }
    void StopWatching() { m_Watches.clear(); }  ///< First thing in a destructor: what dies with the scene is not told.
    bool IsAlive(CVisualElement* element) const { return m_Alive.contains(element); }

private:
    std::set<CVisualElement*> m_Alive;
    std::vector<std::unique_ptr<CSlot<CVisualElement*>>> m_Watches;
};

}  // namespace vexel::test
