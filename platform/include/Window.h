// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_WINDOW_H
#define KITS_WINDOW_H

#include <Looper.h>
#include <Rect.h>
#include <vector>
#include <View.h>

class BBitmap;
class BMenuBar;

namespace kits {
struct window_state;
}

enum window_type {
	B_UNTYPED_WINDOW = 0,
	B_TITLED_WINDOW = 1,
	B_MODAL_WINDOW = 3,
	B_DOCUMENT_WINDOW = 11,
	B_BORDERED_WINDOW = 20,
	B_FLOATING_WINDOW = 21
};

enum {
	B_NOT_MOVABLE = 0x00000001,
	B_NOT_RESIZABLE = 0x00000002,
	B_NOT_CLOSABLE = 0x00000020,
	B_NOT_ZOOMABLE = 0x00000040,
	B_NOT_MINIMIZABLE = 0x00004000,
	B_ASYNCHRONOUS_CONTROLS = 0x00080000
};

const uint32 B_CURRENT_WORKSPACE = 0;

// A window of the desktop: a looper that owns a tree of views. Sizes are those of the content, as
// right - left and bottom - top: one less than the count of pixels.
//
// A window that has quit is gone from the screen and cannot be locked; the object itself lives until
// the application object goes, so that a late Lock() finds out.
class BWindow : public BLooper {
public:
	// The frame is that of the content, in screen coordinates. Born locked and hidden.
	BWindow(BRect frame, const char* title, window_type type, uint32 flags,
		uint32 workspace = B_CURRENT_WORKSPACE);
	// Deletes its views.
	~BWindow() override;

	// These lock for themselves.
	void AddChild(BView* child, BView* before = NULL);
	bool RemoveChild(BView* child);
	int32 CountChildren() const;
	BView* ChildAt(int32 index) const;
	BView* FindView(const char* name) const;

	// Counted. The first Show() gives up the birth lock and starts the thread once the application
	// runs.
	virtual void Show();
	virtual void Hide();
	bool IsHidden() const;

	void DispatchMessage(BMessage* message, BHandler* handler) override;
	void MessageReceived(BMessage* message) override;
	bool QuitRequested() override;
	// Takes the window off the screen and ends its thread.
	void Quit() override;
	void Close() { Quit(); }

	// After any change of size, by a message: later than ResizeTo(), and merged.
	virtual void FrameResized(float newWidth, float newHeight);
	// Works out the zoomed frame, or the one before, and calls the virtual Zoom() with it at once.
	// Declare 'using BWindow::Zoom' where that one is overridden.
	void Zoom();
	virtual void Zoom(BPoint leftTop, float width, float height);

	// Kept within the size limits. The children have followed when it returns. These lock.
	void ResizeTo(float width, float height);
	void ResizeBy(float dx, float dy);
	void MoveTo(float x, float y);
	void MoveTo(BPoint leftTop);
	// Ignored when a minimum exceeds its maximum. A window outside is resized.
	void SetSizeLimits(float minWidth, float maxWidth, float minHeight, float maxHeight);
	void GetSizeLimits(float* minWidth, float* maxWidth, float* minHeight, float* maxHeight) const;
	void SetZoomLimits(float maxWidth, float maxHeight);
	// Microseconds. No view offers a Pulse() hook, so the rate is only kept.
	void SetPulseRate(bigtime_t rate);
	bigtime_t PulseRate() const;

	BRect Bounds() const;
	BRect Frame() const;
	const char* Title() const;
	// The view that has the keyboard, or null.
	BView* CurrentFocus() const;

private:
	friend class BAlert;
	friend class BApplication;
	friend class BBitmap;
	friend class BControl;
	friend class BView;
	friend struct window_access;

	struct offscreen {};
	BWindow(BRect bounds, offscreen);

	void _Init(BRect frame);
	void _Flush() override;
	void _Deliver(BMessage* message, BHandler* handler) override;
	void _DeliverPointer(BMessage* message);
	void _DeliverKey(BMessage* message);
	bool _Shortcut(const BMessage& message);
	void _DeliverDrop(BMessage* message);
	void _Navigate(bool forward);
	void _SendPointer(const BMessage& message, BView* view, uint32 transit);
	void _PointerMoved(BMessage* message, BView* under);
	void _TellWatchers(const BMessage& message, uint32 mask, const std::vector<int32>& told);
	void _EndPress();
	void _ResizedByUser(BMessage* message);
	void _SetSize(float width, float height);
	void _SetFocus(BView* view);
	void _FollowFocus(BView* view);
	void _FocusReported(const BMessage& report);
	void _TellFocus();
	void _StartIfShown();
	bool _HasQuit() const;
	bool _OnScreen() const;

	std::unique_ptr<kits::window_state> fWindow;
};

#endif
