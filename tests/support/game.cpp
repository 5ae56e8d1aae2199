#include "tests/support/game.h"

#include "vexel/platform/convert.h"
#include "vexel/testing/describe.h"
#include "vexel/testing/names.h"

namespace vexel::test
{

void CGameLog::Note(std::string const& step)
{
    m_Steps.push_back(step);
    if (m_Steps.size() > m_Kept)
        m_Steps.pop_front();
}

void CGameLog::Note(std::string const& what, CVisualElement* element)
{
    Note(what + " " + ElementName(element) + " at " + Describe(element->GetPos()) + ", dock " +
         std::to_string(element->GetAlignment()));
}

std::string CGameLog::Text() const
{
    std::string text;
    for (std::string const& step : m_Steps)
        text += step + "\n";
    return text;
}

void MoveAbout(CTestHost& host, CVisualElement& element, CTestRandom& random, CGameLog& log)
{
    rectangle<int> const bounds = element.GetBounds();
    int const margin = random.Chance(20) ? 40 : 2;
    int const x = random.Int(-margin, bounds.right + margin);
    int const y = random.Int(-margin, bounds.bottom + margin);
    host.Mouse().Move(element, x, y);
    log.Note("move " + std::to_string(x) + " " + std::to_string(y));
}

void WaitOrScroll(CTestHost& host, IScrollModel& model, CTestRandom& random, CGameLog& log)
{
    if (random.Bool())
    {
        host.Clock().Advance(100);
        log.Note("time");
        return;
    }
    double const to = random.Int(0, ToInt(model.GetTo()));
    model.SetStart(to);
    log.Note("scroll " + std::to_string(to));
}

std::string DescribeTree(CVisualElement* element, std::string const& indent)
{
    std::string text = indent + ElementName(element) + " at " + Describe(element->GetPos()) + ", asks for " +
                       Describe(element->GetSize()) + ", dock " + std::to_string(element->GetAlignment()) +
                       (element->IsVisible() ? "" : ", hidden") + (element->IsTransparent() ? ", glass" : "") + "\n";
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
        text += DescribeTree(element->GetChildren()->GetItem(i), indent + "  ");
    return text;
}

void Collect(CVisualElement* element, std::vector<CVisualElement*>& all)
{
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
    {
        all.push_back(element->GetChildren()->GetItem(i));
        Collect(all.back(), all);
    }
}

bool SticksOut(CVisualElement* element)
{
    rectangle<int> const bounds = element->GetParent()->GetBounds();
    rectangle<int> const& pos = element->GetPos();
    return pos.left < 0 || pos.top < 0 || pos.right > bounds.right || pos.bottom > bounds.bottom || pos.IsEmpty();
}

}  // namespace vexel::test
