#pragma once

#include "tests/support/deed_scene.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace vexel::test
{

/// A scene in which a user works on a widget step by step, with the misdeeds that every widget must survive. The subclass
/// makes the widget, watches it (WatchWidget) and names its signals.
template <class Widget> class CDeedPlay : public CDeedScene
{
public:
    using Step = std::function<void(CTestHost&)>;

    explicit CDeedPlay(size<int> const& extent) : m_Host(std::make_unique<CTestHost>(extent.width, extent.height)) {}
    CDeedPlay(CDeedPlay const&) = delete;
    CDeedPlay& operator=(CDeedPlay const&) = delete;

    /// `misdeed`: done before the step `misdeedAt`. Steps end with the control.
    void Play(std::vector<Step> const& steps, int misdeedAt, std::function<void()> const& misdeed)
    {
        int number = 0;
        for (Step const& act : steps)
        {
            if (number++ == misdeedAt)
                misdeed();
            if (m_Host->HasControl())
                act(*m_Host);
        }
    }

    /// The element lives, in the tree or in the scene's own hands.
    bool IsThere(CVisualElement* element) const
    {
        return IsAlive(element) && (m_Host->HasControl() || (m_Detached && IsAncestor(element, m_Widget)));
    }

    // Misdeeds
    void Delete(CVisualElement* element)
    {
        if (IsThere(element))
            delete element;
    }
    void DeleteWidget() { Delete(m_Widget); }
    void DeleteControl()
    {
        if (m_Host->HasControl())
            m_Host->DestroyControl();
    }
    void Detach()
    {
        if (!IsThere(m_Widget) || !m_Widget->GetParent())
            return;
        m_Widget->ReParent(nullptr, true);
        m_Detached.reset(m_Widget);
    }
    void Hide()
    {
        if (IsThere(m_Widget))
            m_Widget->SetVisible(false);
    }
    void Disable()
    {
        if (IsThere(m_Widget))
            m_Widget->SetEnabled(false);
    }

    std::unique_ptr<CTestHost> m_Host;

protected:
    void WatchWidget(Widget* widget, std::initializer_list<CVisualElement*> others)
    {
        m_Widget = widget;
        auto const died = [this](CVisualElement* dead) {
            if (dead == m_Widget)
                static_cast<void>(m_Detached.release());
        };
        WatchElements({widget}, died);
        WatchElements(others, died);
    }
    /// First thing in a destructor: the tree goes before the subclass's models.
    void End()
    {
        StopWatching();
        m_Detached.reset();
        m_Host.reset();
    }

private:
    Widget* m_Widget = nullptr;
    std::unique_ptr<Widget> m_Detached;
};

template <class Scene> struct SMisdeed
{
    char const* name;
    std::function<void(Scene&)> deed;
};

/// A test with one misdeed after the other: INSTANTIATE_TEST_SUITE_P(ByDeed, TEST, testing::ValuesIn(...), NameOfDeed()).
template <class Scene> class CDeedTest : public testing::TestWithParam<SMisdeed<Scene>>
{
protected:
    SMisdeed<Scene> const& Misdeed() const { return this->GetParam(); }
    bool Is(std::string const& name) const { return name == Misdeed().name; }

    /// Plays the scene with the misdeed in the slot of each signal, at each of its first firings. `leaveOut`: the signals
    /// in which this misdeed is not allowed. `look`: at the scene afterwards.
    void DoInEachSlot(
        std::span<char const* const> signals,
        std::function<bool(std::string const&)> const& leaveOut = [](std::string const&) { return false; },
        std::function<void(Scene&)> const& look = [](Scene&) {})
    {
        int const mostTurns = 6;
        for (char const* const signal : signals)
        {
            int fired = 0;
            {
                Scene scene;
                auto const ear = scene.m_Connect.at(signal)([&] { ++fired; });
                scene.Run();
            }
            EXPECT_GT(fired, 0) << signal;
            if (leaveOut(signal))
                continue;
            for (int turn = 1; turn <= fired && turn <= mostTurns; ++turn)
            {
                SCOPED_TRACE(std::string(signal) + " " + std::to_string(turn));
                Scene scene;
                int count = 0;
                auto const ear = scene.m_Connect.at(signal)([&] {
                    if (++count == turn)
                        Misdeed().deed(scene);
                });
                scene.Run();
                EXPECT_GE(count, turn);
                look(scene);
            }
        }
    }
    /// Plays it with the misdeed before each step; `look` at the scene afterwards.
    void DoBeforeEachStep(std::function<void(Scene&)> const& look)
    {
        if (Is("Cancel"))
            return;  // nobody would catch it
        int const steps = static_cast<int>(Scene::Steps().size());
        for (int step = 0; step < steps; ++step)
        {
            SCOPED_TRACE(step);
            Scene scene;
            scene.Run(step, Misdeed().deed);
            look(scene);
        }
    }
};

/// Names the instances of a CDeedTest by their misdeed.
struct NameOfDeed
{
    template <class Scene> std::string operator()(testing::TestParamInfo<SMisdeed<Scene>> const& param) const
    {
        return param.param.name;
    }
};

template <class Scene> std::ostream& operator<<(std::ostream& stream, SMisdeed<Scene> const& misdeed)
{
    return stream << misdeed.name;
}

}  // namespace vexel::test
