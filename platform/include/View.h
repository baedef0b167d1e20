// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_VIEW_H
#define KITS_VIEW_H

#include <Font.h>
#include <GraphicsDefs.h>
#include <Handler.h>
#include <InterfaceDefs.h>
#include <memory>
#include <Point.h>
#include <Rect.h>
#include <vector>

class BBitmap;
class BScrollBar;
class BShape;
class BWindow;

namespace kits {
class canvas;
class outline;
struct drawing_context;
struct peer;
struct view_state;
}

// Flags.
const uint32 B_FULL_UPDATE_ON_RESIZE = 0x80000000;
const uint32 B_WILL_DRAW = 0x20000000;
const uint32 B_PULSE_NEEDED = 0x10000000;
const uint32 B_NAVIGABLE_JUMP = 0x08000000;
const uint32 B_FRAME_EVENTS = 0x04000000;
const uint32 B_NAVIGABLE = 0x02000000;
const uint32 B_SUBPIXEL_PRECISE = 0x01000000;
const uint32 B_DRAW_ON_CHILDREN = 0x00800000;
const uint32 B_INPUT_METHOD_AWARE = 0x00400000;

// Resizing modes: what each edge follows, four hexadecimal digits for top, left, bottom, right;
// 1 the parent's top, 2 left, 3 bottom, 4 right, 5 the middle, 0 nothing.
const uint32 B_FOLLOW_NONE = 0;
const uint32 B_FOLLOW_ALL_SIDES = 0x1234;
const uint32 B_FOLLOW_ALL = 0x1234;
const uint32 B_FOLLOW_LEFT = 0x0202;
const uint32 B_FOLLOW_RIGHT = 0x0404;
const uint32 B_FOLLOW_LEFT_RIGHT = 0x0204;
const uint32 B_FOLLOW_H_CENTER = 0x0505;
const uint32 B_FOLLOW_TOP = 0x1010;
const uint32 B_FOLLOW_BOTTOM = 0x3030;
const uint32 B_FOLLOW_TOP_BOTTOM = 0x1030;
const uint32 B_FOLLOW_V_CENTER = 0x5050;
const uint32 B_FOLLOW_LEFT_TOP = 0x1212;

// Masks for SetFont().
enum {
	B_FONT_FAMILY_AND_STYLE = 0x0001,
	B_FONT_SIZE = 0x0002,
	B_FONT_SHEAR = 0x0004,
	B_FONT_ROTATION = 0x0008,
	B_FONT_SPACING = 0x0010,
	B_FONT_ENCODING = 0x0020,
	B_FONT_FACE = 0x0040,
	B_FONT_FLAGS = 0x0080,
	B_FONT_ALL = 0x01FF
};

enum { B_PRIMARY_MOUSE_BUTTON = 1, B_SECONDARY_MOUSE_BUTTON = 2, B_TERTIARY_MOUSE_BUTTON = 4 };

// Where a pointer move stands to a view.
enum { B_ENTERED_VIEW = 0, B_INSIDE_VIEW = 1, B_EXITED_VIEW = 2, B_OUTSIDE_VIEW = 3 };

// What an event mask asks for, and its options, which change nothing here: every move counts while a
// button is held, and the keyboard stays where it is.
enum { B_POINTER_EVENTS = 0x00000001, B_KEYBOARD_EVENTS = 0x00000002 };
enum {
	B_LOCK_WINDOW_FOCUS = 0x00000001,
	B_SUSPEND_VIEW_FOCUS = 0x00000002,
	B_NO_POINTER_HISTORY = 0x00000004,
	B_FULL_POINTER_HISTORY = 0x00000008
};

struct escapement_delta {
	float nonspace;
	float space;
};

// A rectangle of a window that draws itself and takes input. Owns its children. Once attached to a
// window it is guarded by the window's lock; the functions do not lock for themselves.
//
// Coordinates: Frame() is in the parent's, Bounds() in the view's own, with the scroll position at
// their left top. Both are whole pixels, right and bottom edge included.
//
// Drawing works inside and outside Draw(). Outside, it reaches the screen at the end of the dispatch
// (or the outermost Unlock()) and stays until an update repaints the place. A view that nobody can
// see draws nothing.
class BView : public BHandler {
public:
	BView(BRect frame, const char* name, uint32 resizingMode, uint32 flags);
	// Deletes the children. The view must not be attached.
	~BView() override;

	// Takes the child over; it must have no parent. Last is frontmost. Attached to a window, the
	// child and its children are attached at once, each exactly once.
	void AddChild(BView* child, BView* before = NULL);
	// Gives the child back; false when it is none.
	bool RemoveChild(BView* child);
	bool RemoveSelf();
	int32 CountChildren() const;
	// Null past the end.
	BView* ChildAt(int32 index) const;
	BView* NextSibling() const;
	BView* PreviousSibling() const;
	// The view itself or the first below it of that name.
	BView* FindView(const char* name) const;
	// Null for a top-level view.
	BView* Parent() const;
	// Null while unattached.
	BWindow* Window() const;

	BRect Bounds() const;
	BRect Frame() const;
	BPoint ConvertToParent(BPoint point) const;
	BPoint ConvertFromParent(BPoint point) const;
	BPoint ConvertToScreen(BPoint point) const;
	BPoint ConvertFromScreen(BPoint point) const;
	void MoveTo(float x, float y);
	void MoveTo(BPoint where);
	void MoveBy(float dx, float dy);
	// Width and height as right - left and bottom - top.
	void ResizeTo(float width, float height);
	void ResizeBy(float dx, float dy);
	uint32 Flags() const;
	virtual void SetFlags(uint32 flags);
	uint32 ResizingMode() const;
	virtual void SetResizingMode(uint32 mode);

	// Hooks, called with the window locked.
	virtual void AttachedToWindow();
	virtual void AllAttached();
	virtual void DetachedFromWindow();
	virtual void AllDetached();
	void MessageReceived(BMessage* message) override;
	virtual void Draw(BRect updateRect);
	virtual void MouseDown(BPoint where);
	virtual void MouseUp(BPoint where);
	virtual void MouseMoved(BPoint where, uint32 transit, const BMessage* dragMessage);
	// Of the view that has the keyboard; UTF-8, no NUL counted. A repeat calls KeyDown() again. The
	// base lets Tab and Shift-Tab walk through the navigable views.
	virtual void KeyDown(const char* bytes, int32 numBytes);
	virtual void KeyUp(const char* bytes, int32 numBytes);

	// Hears of all pointer events of the window, or keys, besides the view that they are for, also
	// while hidden and, with a button held, outside of the window; moves that are not this view's
	// have the transit B_OUTSIDE_VIEW. Lasts until changed or until the view is detached.
	status_t SetEventMask(uint32 mask, uint32 options = 0);
	// The same until no button is held any more. B_ERROR outside of MouseDown().
	status_t SetMouseEventMask(uint32 mask, uint32 options = 0);
	// Where the pointer is now, in view coordinates, and what is held. Drawing so far is brought to
	// the screen; messages stay in the queue, whatever the last argument. Either result may be null.
	void GetMouse(BPoint* location, uint32* buttons, bool checkMessageQueue = true);

	// Takes the keyboard, or gives it up. Does nothing while unattached.
	virtual void MakeFocus(bool focus = true);
	bool IsFocus() const;

	// Counted: visible when shown as often as hidden. Work before attachment too.
	virtual void Show();
	virtual void Hide();
	// True also when an ancestor or the window is hidden.
	bool IsHidden() const;
	// Stops at lookingFrom: IsHidden(this) tells this view's own level alone.
	bool IsHidden(const BView* lookingFrom) const;

	// The bar that scrolls this view, or null.
	BScrollBar* ScrollBar(orientation posture) const;
	// Clamped to the ranges of the scroll bars; whole pixels.
	virtual void ScrollTo(BPoint where);
	void ScrollTo(float x, float y);
	void ScrollBy(float dx, float dy);

	virtual void SetHighColor(rgb_color color);
	void SetHighColor(uchar red, uchar green, uchar blue, uchar alpha = 255);
	rgb_color HighColor() const;
	virtual void SetLowColor(rgb_color color);
	void SetLowColor(uchar red, uchar green, uchar blue, uchar alpha = 255);
	rgb_color LowColor() const;
	// What the kit erases with before Draw(). Repaints nothing by itself.
	virtual void SetViewColor(rgb_color color);
	void SetViewColor(uchar red, uchar green, uchar blue, uchar alpha = 255);
	rgb_color ViewColor() const;

	virtual void SetFont(const BFont* font, uint32 mask = B_FONT_ALL);
	void SetFontSize(float size);
	void GetFont(BFont* font) const;
	float StringWidth(const char* text) const;
	void GetFontHeight(font_height* height) const;

	// In B_OP_INVERT every pixel under a set bit of the pattern is turned into its opposite, whatever
	// the colours; twice is unchanged. Other modes draw like B_OP_COPY.
	virtual void SetDrawingMode(drawing_mode mode);
	drawing_mode DrawingMode() const;
	// Multiplied by the scale; below one pixel, also 0, it is one pixel.
	virtual void SetPenSize(float size);
	float PenSize() const;
	void SetLineMode(cap_mode cap, join_mode join, float miterLimit = B_DEFAULT_MITER_LIMIT);
	// Everything of the drawing state but the view colour; must balance. A pushed state starts with
	// a scale of 1 on top of the current one.
	void PushState();
	void PopState();
	// Scales what is drawn about (0, 0); not Bounds(), not the pointer. Replaces the scale.
	void SetScale(float scale) const;

	void MovePenTo(BPoint where);
	void MovePenTo(float x, float y);
	void MovePenBy(float dx, float dy);
	BPoint PenLocation() const;

	// Both ends are drawn; the pen moves to the end.
	void StrokeLine(BPoint to, ::pattern p = B_SOLID_HIGH);
	void StrokeLine(BPoint from, BPoint to, ::pattern p = B_SOLID_HIGH);
	// Each pixel of the four edges once; a rectangle the wrong way round is put in order.
	void StrokeRect(BRect rect, ::pattern p = B_SOLID_HIGH);
	// All pixels, edges included; an invalid rectangle paints nothing.
	void FillRect(BRect rect, ::pattern p = B_SOLID_HIGH);
	// Inscribed in the rectangle, edges included.
	void StrokeEllipse(BRect rect, ::pattern p = B_SOLID_HIGH);
	void FillEllipse(BRect rect, ::pattern p = B_SOLID_HIGH);
	// Relative to the pen, which stays where it is.
	void StrokeShape(BShape* shape, ::pattern p = B_SOLID_HIGH);
	void FillShape(BShape* shape, ::pattern p = B_SOLID_HIGH);
	// The point is the left end of the baseline; the pen ends up at the end of the text. UTF-8.
	void DrawString(const char* text, escapement_delta* delta = NULL);
	void DrawString(const char* text, BPoint baseline, escapement_delta* delta = NULL);
	void DrawString(
		const char* text, int32 length, BPoint baseline, escapement_delta* delta = NULL);
	// Left top at the point, or at the pen. Null draws nothing.
	void DrawBitmap(const BBitmap* bitmap);
	void DrawBitmap(const BBitmap* bitmap, BPoint where);

	// Marks what an update must erase and draw again.
	void Invalidate();
	void Invalidate(BRect rect);
	// Both bring to the screen what was drawn; Sync() also waits until it is there.
	void Flush() const;
	void Sync() const;

protected:
	// For the kit's own controls: what a peer is made with.
	const std::shared_ptr<kits::peer>& _ParentWidget() const;
	BRect _PeerFrame() const;
	int32 _WindowToken() const;
	int32 _Token() const;

private:
	friend class BBitmap;
	friend class BControl;
	friend class BMenu;
	friend class BMenuBar;
	friend class BMenuItem;
	friend class BScrollBar;
	friend class BWindow;
	friend struct view_access;

	void _Attach(BWindow* window);
	void _CallAttached();
	void _Detach();
	void _CallDetached();
	virtual void _MakePeer();
	// False for controls, which the display paints.
	virtual bool _IsPainted() const;
	void _SetFrame(BRect frame);
	void _FollowParent(float dx, float dy);
	void _ScrollContents(BPoint by);
	void _ScrollBarsFollow();
	void _Wheel(BMessage* message);
	void _Key(BMessage* message);
	status_t _Watch(uint32& mask, uint32 wanted);
	void _EndWatch();
	void _ForgetImages();
	void _VisibilityChanged();
	bool _IsWithin(const BView& view) const;
	bool _Context(kits::drawing_context& context) const;
	bool _OffscreenContext(kits::drawing_context& context) const;
	void _Touched() const;
	void _Trace(const BShape& shape, kits::outline& path) const;
	void _Update();
	void _MakeImage();
	void _Publish();
	void _UpdateTree();
	BView* _ViewAt(BPoint where);
	void _CollectNavigable(std::vector<BView*>& stops);
	// False for a control that is switched off.
	virtual bool _TakesKeyboard() const;
	BPoint _FromWindow(BPoint where) const;

	std::unique_ptr<kits::view_state> fState;
};

#endif
