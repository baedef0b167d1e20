// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENUFIELD_H
#define KITS_MENUFIELD_H

#include <string>
#include <View.h>

class BMenu;

// A label and a button that opens a menu. Attached, it takes the background of its parent.
class BMenuField : public BView {
public:
	// Takes the menu over, which becomes its child. The label may be null. The button is as wide as
	// its longest text needs, within the frame; of a fixed size it fills the frame.
	BMenuField(BRect frame, const char* name, const char* label, BMenu* menu,
		uint32 resizingMode = B_FOLLOW_LEFT | B_FOLLOW_TOP,
		uint32 flags = B_WILL_DRAW | B_NAVIGABLE);
	BMenuField(BRect frame, const char* name, const char* label, BMenu* menu, bool fixedSize,
		uint32 resizingMode = B_FOLLOW_LEFT | B_FOLLOW_TOP,
		uint32 flags = B_WILL_DRAW | B_NAVIGABLE);
	~BMenuField() override;

	BMenu* Menu() const;
	// Never null.
	const char* Label() const;
	// Where the button begins, from the left edge; half the width with a label, else 0.
	virtual void SetDivider(float divider);
	float Divider() const;

	void AttachedToWindow() override;

private:
	friend class BMenu;
	friend class BMenuItem;

	bool _IsPainted() const override;
	void _MakePeer() override;
	void _TellPeer();

	std::string fLabel;
	BMenu* fMenu;
	float fDivider;
	bool fFixedSize;
};

#endif
