#pragma once

#include "vexel/platform/system.h"

/// A system that answers what the test says. It is the current one while it lives.
class CScriptedSystem : public vexelbase::ISystem,
                        private vexelbase::IPointer,
                        private vexelbase::IClipboard,
                        private vexelbase::ISysPalette
{
public:
    explicit CScriptedSystem(double scale = 1.0);
    ~CScriptedSystem() override;

    std::string m_Clipboard;  ///< What was copied last.
    vexelbase::point<int> m_PointerPos;
    bool m_HasPalette = true;  ///< Its colour of number n is 0xFF000000 + n.

    void SetScale(double scale);
    void SetDefaultFont(vexelbase::font const& value);  ///< At first "Default", sans, size 8.

    // From ISystem
    vexelbase::IPointer* GetPointer() override { return this; }
    vexelbase::IClipboard* GetClipboard() override { return this; }
    vexelbase::ISysPalette* GetPalette() override { return m_HasPalette ? this : nullptr; }
    vexelbase::font GetDefaultFont() override { return m_Font; }
    int GetSystemMetric(int) override { return 16; }
    double GetScale() override { return m_Scale; }
    vexelbase::vexel_ptr<vexelbase::ISysTimer> CreateTimer(int, int) override { return nullptr; }
    vexelbase::vexel_ptr<vexelbase::IRasterPicture> CreateRasterPicture(vexelbase::size<int> const&) override
    {
        return nullptr;
    }
    vexelbase::vexel_ptr<vexelbase::IRasterPicture> CreateRasterPicture(vexelbase::XPMBuf const&) override
    {
        return nullptr;
    }
    vexelbase::vexel_ptr<vexelbase::IRunner> GetRunner() override { return nullptr; }
    vexelbase::vexel_ptr<vexelbase::ILock> CreateLock() override { return nullptr; }

private:
    vexelbase::point<int> GetPos() const override { return m_PointerPos; }
    void SetText(std::string const& text) override { m_Clipboard = text; }
    std::string GetText() const override { return m_Clipboard; }
    vexelbase::_color GetColor(SysColor number) const override
    {
        return vexelbase::_color(0xFF000000u + static_cast<unsigned>(number));
    }

    vexelbase::ISystem* m_Before;
    double m_Scale;
    vexelbase::font m_Font;
};

/// Turns automatic scaling on or off for a scope.
class CAutoScaleScope
{
public:
    explicit CAutoScaleScope(bool on) : m_Before(vexelbase::GetDPIAutoScale()) { vexelbase::SetDPIAutoScale(on); }
    ~CAutoScaleScope() { vexelbase::SetDPIAutoScale(m_Before); }
    CAutoScaleScope(CAutoScaleScope const&) = delete;
    CAutoScaleScope& operator=(CAutoScaleScope const&) = delete;

private:
    bool m_Before;
};
