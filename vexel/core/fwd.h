#pragma once

namespace vexelbase
{

class CContextMenuEvent;
class CCustomEvent;
class CEvent;
class CKeyboardEvent;
class CMouseEvent;
class CMouseWheelEvent;
class CTooltipEvent;
class CWindowEvent;
class ICustomPalette;
class ICustomPaletteEx;
class IImageList;
class IPainter;
class IRasterPicture;
class ISysWindow;

}  // namespace vexelbase

namespace vexel
{

// The base library's names read plainly inside the framework; namesakes below hide theirs.
using namespace vexelbase;

class CBase;
class cancel_processing;

class CBaseControl;
class CBaseControlImp;
class CChildren;
class CElementList;
class CVisualElement;
class IChildren;
class IContextMenu;
class IControl;
class IVisualElements;
struct DragInfo;

}  // namespace vexel
