// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_MESSAGE_H
#define KITS_MESSAGE_H

#include <Entry.h>
#include <memory>
#include <Messenger.h>
#include <Point.h>
#include <Rect.h>
#include <string>
#include <SupportDefs.h>
#include <TypeConstants.h>
#include <variant>
#include <vector>

class BHandler;

// A code and named, typed fields. Each field holds one or more values of one type, in the order
// they were added. A value class: copies are deep and share nothing, so a message may be built in
// one thread and sent to another.
//
// Types are strict: an int16 field is not found by FindInt32(). A failed Find..() sets its output
// to zero or empty, as the platform does; read into a local where an old value must survive.
class BMessage {
public:
	uint32 what;

	BMessage();
	BMessage(uint32 code);
	BMessage(const BMessage& other);
	BMessage& operator=(const BMessage& other);
	virtual ~BMessage();

	status_t AddInt8(const char* name, int8 value);
	status_t AddInt16(const char* name, int16 value);
	status_t AddInt32(const char* name, int32 value);
	status_t AddInt64(const char* name, int64 value);
	status_t AddBool(const char* name, bool value);
	status_t AddFloat(const char* name, float value);
	status_t AddDouble(const char* name, double value);
	status_t AddPoint(const char* name, BPoint value);
	status_t AddRect(const char* name, BRect value);
	// Copies the text. A null pointer is B_BAD_VALUE.
	status_t AddString(const char* name, const char* value);
	// The pointer only; what it points to stays its owner's.
	status_t AddPointer(const char* name, const void* value);
	status_t AddRef(const char* name, const entry_ref* value);
	status_t AddMessenger(const char* name, BMessenger value);
	status_t AddMessage(const char* name, const BMessage* value);

	status_t FindInt8(const char* name, int8* value) const;
	status_t FindInt8(const char* name, int32 index, int8* value) const;
	status_t FindInt16(const char* name, int16* value) const;
	status_t FindInt16(const char* name, int32 index, int16* value) const;
	status_t FindInt32(const char* name, int32* value) const;
	status_t FindInt32(const char* name, int32 index, int32* value) const;
	status_t FindInt64(const char* name, int64* value) const;
	status_t FindInt64(const char* name, int32 index, int64* value) const;
	status_t FindBool(const char* name, bool* value) const;
	status_t FindBool(const char* name, int32 index, bool* value) const;
	status_t FindFloat(const char* name, float* value) const;
	status_t FindFloat(const char* name, int32 index, float* value) const;
	status_t FindDouble(const char* name, double* value) const;
	status_t FindDouble(const char* name, int32 index, double* value) const;
	status_t FindPoint(const char* name, BPoint* value) const;
	status_t FindPoint(const char* name, int32 index, BPoint* value) const;
	status_t FindRect(const char* name, BRect* value) const;
	status_t FindRect(const char* name, int32 index, BRect* value) const;
	// The text belongs to the message: valid until the message changes or goes.
	status_t FindString(const char* name, const char** value) const;
	status_t FindString(const char* name, int32 index, const char** value) const;
	status_t FindPointer(const char* name, void** value) const;
	status_t FindPointer(const char* name, int32 index, void** value) const;
	status_t FindRef(const char* name, entry_ref* value) const;
	status_t FindRef(const char* name, int32 index, entry_ref* value) const;
	status_t FindMessenger(const char* name, BMessenger* value) const;
	status_t FindMessenger(const char* name, int32 index, BMessenger* value) const;
	status_t FindMessage(const char* name, BMessage* value) const;
	status_t FindMessage(const char* name, int32 index, BMessage* value) const;

	// Short forms: the value, or zero, false, empty or null when it is missing.
	int8 FindInt8(const char* name, int32 index = 0) const;
	int16 FindInt16(const char* name, int32 index = 0) const;
	int32 FindInt32(const char* name, int32 index = 0) const;
	int64 FindInt64(const char* name, int32 index = 0) const;
	bool FindBool(const char* name, int32 index = 0) const;
	float FindFloat(const char* name, int32 index = 0) const;
	double FindDouble(const char* name, int32 index = 0) const;
	BPoint FindPoint(const char* name, int32 index = 0) const;
	BRect FindRect(const char* name, int32 index = 0) const;
	const char* FindString(const char* name, int32 index = 0) const;

	bool HasInt8(const char* name, int32 index = 0) const;
	bool HasInt16(const char* name, int32 index = 0) const;
	bool HasInt32(const char* name, int32 index = 0) const;
	bool HasInt64(const char* name, int32 index = 0) const;
	bool HasBool(const char* name, int32 index = 0) const;
	bool HasFloat(const char* name, int32 index = 0) const;
	bool HasPoint(const char* name, int32 index = 0) const;
	bool HasRect(const char* name, int32 index = 0) const;
	bool HasString(const char* name, int32 index = 0) const;
	bool HasPointer(const char* name, int32 index = 0) const;
	bool HasRef(const char* name, int32 index = 0) const;
	bool HasMessage(const char* name, int32 index = 0) const;

	// Type and number of values of one field; *count is 0 on failure. Either may be null.
	status_t GetInfo(const char* name, type_code* type, int32* count = NULL) const;
	status_t RemoveName(const char* name);
	status_t MakeEmpty();
	bool IsEmpty() const;

	// Where a reply goes; invalid when the sender named nobody.
	BMessenger ReturnAddress() const;
	status_t SendReply(uint32 command, BHandler* replyTo = NULL);
	status_t SendReply(BMessage* reply, BHandler* replyTo = NULL);

	// True for a message that came by drag and drop; the point is in screen coordinates.
	bool WasDropped() const;
	BPoint DropPoint() const;

private:
	friend class BMessenger;
	friend struct message_access;

	// The order is that of type_codes in Message.cpp.
	using value = std::variant<bool, int8, int16, int32, int64, float, double, BPoint, BRect,
		std::string, void*, entry_ref, BMessenger, std::shared_ptr<const BMessage>>;

	struct field {
		std::string name;
		std::vector<value> values;
	};

	const field* _Field(const char* name) const;
	status_t _Add(const char* name, value added);
	template <typename T>
	status_t _Find(const char* name, int32 index, const T** found) const;
	template <typename T>
	status_t _Get(const char* name, int32 index, T* out) const;

	std::vector<field> fFields;
	BMessenger fReply;
	BPoint fDropPoint;
	bool fDropped;
};

#endif
