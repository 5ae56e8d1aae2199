#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/scroll/scroll_model.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_host.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace vexel::test
{

/// The last steps of a game that is played at random, for whoever has to find out why it was lost.
class CGameLog
{
public:
    explicit CGameLog(std::size_t kept = 20) : m_Kept(kept) {}

    void Note(std::string const& step);
    void Note(std::string const& what, CVisualElement* element);  ///< With its name, place and docking.
    std::string Text() const;                                     ///< A line a step.

private:
    std::size_t const m_Kept;
    std::deque<std::string> m_Steps;
};

/// The pointer goes somewhere over the element, or a bit beside it.
void MoveAbout(CTestHost& host, CVisualElement& element, CTestRandom& random, CGameLog& log);
/// Time passes, or the model goes somewhere.
void WaitOrScroll(CTestHost& host, IScrollModel& model, CTestRandom& random, CGameLog& log);

/// A line for an element and for each below it, indented: name, place, wanted size and what is special about it.
std::string DescribeTree(CVisualElement* element, std::string const& indent = "");

/// All elements below, parents first.
void Collect(CVisualElement* element, std::vector<CVisualElement*>& all);

/// The element isn't wholly inside its parent's bounds, or is empty.
bool SticksOut(CVisualElement* element);

/// The first visible element below that the predicate is true of; null: none. Hidden ones are left out with all in them.
template <class Predicate> CVisualElement* FindShown(CVisualElement* element, Predicate const& predicate)
{
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
    {
        CVisualElement* const child = element->GetChildren()->GetItem(i);
        if (!child->IsVisible())
            continue;
        if (predicate(child))
            return child;
        if (CVisualElement* const found = FindShown(child, predicate))
            return found;
    }
    return nullptr;
}

}  // namespace vexel::test
