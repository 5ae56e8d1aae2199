#pragma once

#include "vexel/layout/layout.h"

namespace vexel
{

/// A mix-in for widgets that draw along the edge they are docked to: the layout of that edge, exchanged with it.
class VEXEL_API CLayoutFlavor : public ILayout
{
public:
    CLayoutFlavor() = default;

    /// Whether ConvFont and ConvTextAlign turn texts with the edge. Without, they leave everything as it is.
    void SetTextConversion(bool convert) { m_ConvertText = convert; }
    bool IsTextConverted() const { return m_ConvertText; }
    /// Takes the layout of that edge. Always true: the widget may go on with its own SetAlignment.
    bool ChangeLayout(Alignment alignment);

    // From ILayout ---------------------------------------------------------------------------------------------------
    void IncAlong(point<double>* position, double value) const override { m_Layout->IncAlong(position, value); }
    void IncAcross(point<double>* position, double value) const override { m_Layout->IncAcross(position, value); }
    double GetAlong(double x, double y) const override { return m_Layout->GetAlong(x, y); }
    double& GetAlongRef(double& x, double& y) const override { return m_Layout->GetAlongRef(x, y); }
    int& GetAlongRef(int& x, int& y) const override { return m_Layout->GetAlongRef(x, y); }
    double GetAcross(double x, double y) const override { return m_Layout->GetAcross(x, y); }
    double& GetAcrossRef(double& x, double& y) const override { return m_Layout->GetAcrossRef(x, y); }
    int& GetAcrossRef(int& x, int& y) const override { return m_Layout->GetAcrossRef(x, y); }
    void CutRect(rectangle<int>* rect, rectangle<int> const& limit) const override { m_Layout->CutRect(rect, limit); }
    point<double> MakePoint(double along, double across) const override { return m_Layout->MakePoint(along, across); }
    rectangle<double> MakeRect(double alongStart, double acrossStart, double alongEnd, double acrossEnd) const override
    {
        return m_Layout->MakeRect(alongStart, acrossStart, alongEnd, acrossEnd);
    }
    void ConvFont(font* value) const override;
    int ConvTextAlign(int flags) const override;

private:
    ILayout* m_Layout = CLayoutManager::GetLayout(alNone);  // not owned
    bool m_ConvertText = false;
};

}  // namespace vexel
