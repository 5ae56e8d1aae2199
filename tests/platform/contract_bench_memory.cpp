#ifndef VEXEL_TESTS_ON_QT

#include "tests/platform/contract_bench.h"

#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/memory/memory_window.h"

namespace vexelbase::tests
{

namespace
{

class CMemoryBench final : public CContractBench
{
public:
    std::unique_ptr<ISysWindow> MakeWindow(point<int> const& screen, size<int> const& extent) override
    {
        return std::make_unique<memory::CMemoryWindow>(m_System, screen, extent);
    }
    void Resize(ISysWindow& window, size<int> const& extent) override { Own(window).Resize(extent); }
    void Move(ISysWindow& window, point<int> const& screen) override { Own(window).MoveTo(screen); }
    void Show(ISysWindow& window, bool visible) override { Own(window).Show(visible); }
    void Close(ISysWindow& window) override { Own(window).Destroy(); }
    int GetCursor(ISysWindow& window) override { return Own(window).GetCursor(); }

    void Settle() override
    {
        for (int i = 0; i < 10; ++i)
        {
            m_System.RunQueues();
            std::vector<memory::CMemoryWindow*> const windows = m_System.GetWindows();
            for (memory::CMemoryWindow* window : windows)
                window->RunFrame();
        }
    }
    bool RunUntil(std::function<bool()> const& condition) override
    {
        for (int i = 0; i < 5000 && !condition(); ++i)
        {
            m_System.Advance(1);
            m_System.RunBackground(100);
            Settle();
        }
        return condition();
    }
    void Wait(int milliseconds) override { m_System.Advance(milliseconds); }

    void MovePointer(point<int> const& screen) override { m_System.MovePointer(screen); }
    void Press(MouseButton button) override { m_System.PressButton(button); }
    void PressTwice(MouseButton button) override
    {
        m_System.PressButton(button);
        m_System.ReleaseButton(button);
        m_System.PressButton(button, true);
    }
    void Release(MouseButton button) override { m_System.ReleaseButton(button); }
    void TurnWheel(int notches) override { m_System.TurnWheel(notches); }
    void HoldKeys(int keys) override { m_System.SetHeldKeys(keys); }
    void KeyDown(int virtualKey, std::string const& text) override
    {
        bool passOn = true;
        m_System.KeyDown(virtualKey, nullptr, &passOn);
        if (!passOn)
            return;
        for (char const byte : text)
            m_System.Character(byte);
    }
    void KeyUp(int virtualKey) override { m_System.KeyUp(virtualKey); }

    void SetScale(double scale) override { m_System.SetScale(scale); }
    void ChangeColors(ISysWindow& window) override { Own(window).TellSysColorChange(); }

private:
    static memory::CMemoryWindow& Own(ISysWindow& window) { return dynamic_cast<memory::CMemoryWindow&>(window); }

    memory::CMemorySystem m_System;
};

}  // namespace

std::unique_ptr<CContractBench> CContractBench::Create()
{
    return std::make_unique<CMemoryBench>();
}

}  // namespace vexelbase::tests

#endif
