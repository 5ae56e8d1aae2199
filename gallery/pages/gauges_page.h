#pragma once

#include "gallery/frame/page.h"

#include <vector>

namespace vexel
{
class CButton;
class CGauge;
}  // namespace vexel

namespace gallery
{

class CGaugesPage : public CPage, public subscriber_base_t
{
public:
    void Build(CVisualElement* parent) override;

private:
    CGauge* Adopt(CGauge& gauge, double value);
    void Step(double step);
    void More(CButton*) { Step(10); }
    void Less(CButton*) { Step(-10); }
    void Again(CButton*);

    std::vector<CGauge*> m_Gauges;
};

}  // namespace gallery
