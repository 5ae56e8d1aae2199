#pragma once

#include "vexel/platform/base_picture.h"
#include "vexel/platform/system.h"

#include <array>

namespace vexelbase::qt
{

/// A picture whose text and parts are Qt's.
class CQtPicture final : public CBasePicture
{
public:
    using CBasePicture::CBasePicture;

protected:
    std::unique_ptr<IPaintDevice> CreateDevice(CPixelBuffer& pixels) const override;
    vexel_ptr<IRasterPicture> CreateSame(size<int> const& extent) const override;
};

/// Follows the application's palette, live.
class CQtPalette final : public ISysPalette
{
public:
    _color GetColor(SysColor number) const override;

private:
    static constexpr std::size_t Count = 14;
    void Refresh() const;

    mutable long long m_Key = -1;  // of the Qt palette that the colours were read from
    mutable std::array<_color, Count> m_Colors;
};

/// The desktop as Qt sees it. Never destroyed: without an application object it answers with what is harmless.
/// Screen pixels are Qt's global coordinates times the ratio of the first screen, whatever the zoom.
class CQtSystem final : public ISystem
{
public:
    static CQtSystem& Get();
    /// Makes it the current system, counted. The application object must exist.
    void Install();
    /// The last one gives the place back to the system that stood there before, if this is still the current one. The
    /// end of the application object does the same.
    void Uninstall();

    IPointer* GetPointer() override { return &m_Pointer; }
    IClipboard* GetClipboard() override { return &m_Clipboard; }
    ISysPalette* GetPalette() override { return &m_Palette; }
    font GetDefaultFont() override;
    int GetSystemMetric(int metric) override;
    double GetScale() override;
    vexel_ptr<ISysTimer> CreateTimer(int period, int option) override;
    vexel_ptr<IRasterPicture> CreateRasterPicture(size<int> const& pictureSize) override;
    vexel_ptr<IRasterPicture> CreateRasterPicture(XPMBuf const& buffer) override;
    vexel_ptr<IRunner> GetRunner() override;
    vexel_ptr<ILock> CreateLock() override;
    rectangle<int> GetWorkArea(point<int> const& screen) override;

    /// Screen pixels for one of Qt's; the scale without the zoom.
    static double GetScreenRatio();
    /// A factor on top of the desktop's scale; not-a-number counts as 1.
    void SetZoom(double factor);
    /// The desktop's look may have changed: font, scale, colours, style.
    void RefreshLook();

private:
    class CPointer final : public IPointer
    {
    public:
        point<int> GetPos() const override;
    };
    class CClipboard final : public IClipboard
    {
    public:
        void SetText(std::string const& text) override;
        std::string GetText() const override;
    };

    CQtSystem() = default;
    static void ApplicationGoes();

    CPointer m_Pointer;
    CClipboard m_Clipboard;
    CQtPalette m_Palette;
    double m_Zoom = 1.0;
    ISystem* m_Before = nullptr;
    int m_Installed = 0;
};

}  // namespace vexelbase::qt
