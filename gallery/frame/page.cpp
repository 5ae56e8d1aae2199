#include "gallery/frame/page.h"

namespace gallery
{

CPage::~CPage() = default;

void CPage::ReportMouse(CVisualElement* element, std::string const& name)
{
    Report(element->m_SigButtonDown, name + ".down");
    Report(element->m_SigButtonUp, name + ".up");
    Report(element->m_SigClick, name + ".click");
    Report(element->m_SigDoubleClick, name + ".double");
    Report(element->m_SigMouseHover, name + ".hover");
    Report(element->m_SigMouseLeave, name + ".leave");
}

void CPage::ReportInput(CVisualElement* element, std::string const& name)
{
    ReportMouse(element, name);
    Report(element->m_SigMouseMove, name + ".move");
    Report(element->m_SigWheel, name + ".wheel");
    Report(element->m_SigKeyDown, name + ".keydown");
    Report(element->m_SigKeyUp, name + ".keyup");
    Report(element->m_SigChar, name + ".char");
    Report(element->m_SigGetFocus, name + ".focus");
    Report(element->m_SigLostFocus, name + ".unfocus");
    Report(element->m_SigContextMenu, name + ".menu");
}

}  // namespace gallery
