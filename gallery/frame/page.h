#pragma once

#include "gallery/frame/reporter.h"
#include "vexel/core/visual_element.h"

#include <memory>
#include <string>
#include <vector>

namespace gallery
{

using namespace vexel;

/// One page: builds its elements under a parent, which owns them. The page lives as long as they do.
class CPage
{
public:
    CPage() = default;
    CPage(CPage const&) = delete;
    CPage& operator=(CPage const&) = delete;
    virtual ~CPage();

    virtual void Build(CVisualElement* parent) = 0;

protected:
    /// Writes a line "signal name(arguments)" each time the signal fires.
    template <class... A> void Report(signal_t<A...>& signal, std::string const& name)
    {
        auto reporter = std::make_unique<CReporter<A...>>(name);
        signal.connect(reporter.get(), &CReporter<A...>::Fired);
        m_Reporters.push_back(std::move(reporter));
    }
    /// Reports press, release, click, double click, hover and leave of an element.
    void ReportMouse(CVisualElement* element, std::string const& name);
    /// Reports everything that an element hears from mouse, wheel, keyboard and focus.
    void ReportInput(CVisualElement* element, std::string const& name);

private:
    std::vector<std::unique_ptr<IReporter>> m_Reporters;
};

}  // namespace gallery
