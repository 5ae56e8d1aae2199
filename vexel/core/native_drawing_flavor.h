#pragma once

namespace vexel
{

/// A mix-in for widgets that can let the platform draw them: whether they do.
class CNativeDrawingFlavor
{
public:
    bool IsNativeDrawing() const { return m_NativeDrawing; }
    void SetNativeDrawing(bool native) { m_NativeDrawing = native; }  ///< The owner repaints.

protected:
    explicit CNativeDrawingFlavor(bool native = true) : m_NativeDrawing(native) {}
    ~CNativeDrawingFlavor() = default;

    bool m_NativeDrawing;
};

}  // namespace vexel
