// Trees of 20,000 levels on a stack of 8 MiB, the usual one of a program.

#include "tests/support/call_log.h"
#include "tests/support/recording_window.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"

#include <gtest/gtest.h>

#include <functional>
#include <pthread.h>

using namespace vexel;

namespace
{

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VEXEL_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(undefined_behavior_sanitizer)
#define VEXEL_SANITIZED 1
#endif
#endif

#ifdef VEXEL_SANITIZED
constexpr std::size_t stack_bytes = 64u << 20;  // their frames are several times as large
#else
constexpr std::size_t stack_bytes = 8u << 20;
#endif

constexpr int levels = 20000;

// Runs the work on a stack of its own and waits for it.
void OnOwnStack(std::function<void()> work)
{
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, stack_bytes), 0);
    pthread_t thread;
    auto const run = [](void* closure) -> void* {
        (*static_cast<std::function<void()>*>(closure))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

// Stops changes, which would otherwise walk over all levels above.
class CWall : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    void ProcessChange(CVisualElement** element) override { *element = nullptr; }
};

// Elements in each other, each filling the one around it; returns the outermost. Grown from the inside, so that no level
// costs a walk over those around it.
CVisualElement* Nest(CVisualElement*& innermost)
{
    innermost = new CVisualElement(nullptr, {0, 0}, alClient);
    CVisualElement* outermost = innermost;
    for (int i = 1; i < levels; ++i)
    {
        CVisualElement* const around = i % 50 == 0 ? new CWall(nullptr, {0, 0}, alClient)
                                                   : new CVisualElement(nullptr, {0, 0}, alClient);
        outermost->ReParent(around, false);
        outermost = around;
    }
    return outermost;
}

TEST(DeepTree, IsLaidOutPaintedHitAndDies)
{
    CScriptedSystem system;
    CCallLog log;
    OnOwnStack([&] {
        CRecordingWindow window(log, 100, 50);
        auto control = std::make_unique<CBaseControl>(&window);
        CVisualElement* innermost = nullptr;

        control->SetContent(Nest(innermost));
        EXPECT_EQ(innermost->GetControl(), control->GetControl());
        control->OnDraw(&window.m_Painter);

        EXPECT_EQ(innermost->GetPos(), (rectangle<int>{0, 0, 99, 49}));
        EXPECT_EQ(innermost->GetValidRect(), (rectangle<int>{0, 0, 99, 49}));
        EXPECT_EQ(control->GetContent()->FindVisualElement(50, 20), innermost);

        CMouseEvent press(50, 20, 1, mbLeft);
        control->OnButtonDown(&press);
        EXPECT_EQ(control->GetMouseElement(), innermost);
        EXPECT_TRUE(innermost->IsPressed());
        CMouseEvent release(50, 20, 0, mbLeft);
        control->OnButtonUp(&release);
        EXPECT_FALSE(innermost->IsPressed());

        window.Resize(80, 40);
        CWindowEvent resize;
        control->OnResize(&resize);
        EXPECT_EQ(innermost->GetPos(), (rectangle<int>{0, 0, 79, 39}));

        control.reset();
    });
}

TEST(DeepTree, IsShownHiddenUpdatedSearchedAndReadAloud)
{
    CScriptedSystem system;
    OnOwnStack([&] {
        CVisualElement* innermost = nullptr;
        std::unique_ptr<CVisualElement> const root(Nest(innermost));
        innermost->SetId(5);

        EXPECT_EQ(root->FindVisualElement(5ul, false), innermost);
        root->SetVisible(false);
        EXPECT_FALSE(innermost->IsDisplayable());
        root->SetVisible(true);
        root->OnGlobalUpdate();
        root->RefreshPos();
        root->Scroll(1, 1, false);
        EXPECT_EQ(root->AsString(), "");
        root->ProcessSysColorChanged();
        root->ProcessControlChangeFocus(true);
        root->ProcessControlDestroy();
        EXPECT_EQ(root->GetFirstTabElement(), nullptr);
        EXPECT_EQ(root->GetLastTabElement(), nullptr);
    });
}

} // namespace
