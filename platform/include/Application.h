// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_APPLICATION_H
#define KITS_APPLICATION_H

#include <Looper.h>
#include <mutex>
#include <vector>

class BWindow;

// The process's one application. Constructed by the thread that becomes the display thread (that
// of main); its messages are dispatched on a thread of their own while Run() serves the display.
//
// Files named when the program is started arrive as one B_REFS_RECEIVED before anything else.
class BApplication : public BLooper {
public:
	// The signature is a MIME string. Without a display the process ends with status 1 and one
	// line on standard error.
	explicit BApplication(const char* signature);
	// Deletes the windows, those that have quit included, and clears be_app.
	~BApplication() override;

	// Serves the display until the application has quit. Display thread only.
	thread_id Run() override;
	// Ends the loop; the object stays its owner's.
	void Quit() override;
	// Asks every window in turn; each that agrees quits. False at the first refusal.
	bool QuitRequested() override;
	void MessageReceived(BMessage* message) override;
	void DispatchMessage(BMessage* message, BHandler* handler) override;

	// Field "refs": one or more files, from a panel, the desktop or the start arguments.
	virtual void RefsReceived(BMessage* message);
	virtual void AboutRequested();
	virtual void ReadyToRun();

	// Windows that have not quit.
	int32 CountWindows() const;
	// Null past the end.
	BWindow* WindowAt(int32 index) const;

private:
	friend class BWindow;

	// Answers whether the application runs already.
	bool _AddWindow(BWindow* window);
	void _RemoveWindow(BWindow* window);
	void _StartWindows();
	// Whether the window is shown later, when the application is ready.
	bool _ShowsLater(BWindow* window);
	void _ShowWindows();
	void _QuitWindows();
	bool _Started() const;
	std::vector<BWindow*> _Windows() const;
	std::vector<BWindow*> _RunningWindows() const;

	// Windows come and go in their own threads.
	mutable std::mutex fWindowLock;
	std::vector<BWindow*> fWindows;
	bool fStarted;
	bool fReady;
	// Shown by the program before the application was ready.
	std::vector<BWindow*> fShownLater;
};

extern BApplication* be_app;

#endif
