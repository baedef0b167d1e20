// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include <Errors.h>
#include <Message.h>


namespace {

// In the order of BMessage::value's alternatives.
constexpr type_code type_codes[] = {B_BOOL_TYPE, B_INT8_TYPE, B_INT16_TYPE, B_INT32_TYPE,
	B_INT64_TYPE, B_FLOAT_TYPE, B_DOUBLE_TYPE, B_POINT_TYPE, B_RECT_TYPE, B_STRING_TYPE,
	B_POINTER_TYPE, B_REF_TYPE, B_MESSENGER_TYPE, B_MESSAGE_TYPE};

}


BMessage::BMessage() : BMessage(0) {}


BMessage::BMessage(uint32 code) : what(code), fDropPoint(0, 0), fDropped(false) {}


BMessage::BMessage(const BMessage& other) = default;


BMessage& BMessage::operator=(const BMessage& other) = default;


BMessage::~BMessage() = default;


const BMessage::field*
BMessage::_Field(const char* name) const
{
	for (const field& each : fFields) {
		if (name && each.name == name)
			return &each;
	}
	return nullptr;
}


status_t
BMessage::_Add(const char* name, value added)
{
	if (!name)
		return B_BAD_VALUE;
	auto* found = const_cast<field*>(_Field(name));
	if (!found) {
		fFields.push_back({name, {}});
		found = &fFields.back();
	} else if (found->values.front().index() != added.index())
		return B_BAD_TYPE;
	found->values.push_back(std::move(added));
	return B_OK;
}


template <typename T>
status_t
BMessage::_Find(const char* name, int32 index, const T** found) const
{
	*found = nullptr;
	const field* named = _Field(name);
	if (!named)
		return B_NAME_NOT_FOUND;
	if (!std::holds_alternative<T>(named->values.front()))
		return B_BAD_TYPE;
	if (index < 0 || (size_t)index >= named->values.size())
		return B_BAD_INDEX;
	*found = std::get_if<T>(&named->values[(size_t)index]);
	return B_OK;
}


template <typename T>
status_t
BMessage::_Get(const char* name, int32 index, T* out) const
{
	const T* found;
	status_t status = _Find(name, index, &found);
	*out = found ? *found : T();
	return status;
}


// One type's adding, both ways of finding, the short form and the question.
#define KITS_MESSAGE_TYPE(Name, T)                                                                 \
	status_t BMessage::Add##Name(const char* name, T added)                                        \
	{                                                                                              \
		return _Add(name, value(added));                                                           \
	}                                                                                              \
	status_t BMessage::Find##Name(const char* name, T* out) const                                  \
	{                                                                                              \
		return _Get(name, 0, out);                                                                 \
	}                                                                                              \
	status_t BMessage::Find##Name(const char* name, int32 index, T* out) const                     \
	{                                                                                              \
		return _Get(name, index, out);                                                             \
	}                                                                                              \
	T BMessage::Find##Name(const char* name, int32 index) const                                    \
	{                                                                                              \
		T out;                                                                                     \
		_Get(name, index, &out);                                                                   \
		return out;                                                                                \
	}

KITS_MESSAGE_TYPE(Int8, int8)
KITS_MESSAGE_TYPE(Int16, int16)
KITS_MESSAGE_TYPE(Int32, int32)
KITS_MESSAGE_TYPE(Int64, int64)
KITS_MESSAGE_TYPE(Bool, bool)
KITS_MESSAGE_TYPE(Float, float)
KITS_MESSAGE_TYPE(Double, double)
KITS_MESSAGE_TYPE(Point, BPoint)
KITS_MESSAGE_TYPE(Rect, BRect)

#undef KITS_MESSAGE_TYPE


status_t
BMessage::AddString(const char* name, const char* added)
{
	return added ? _Add(name, value(std::string(added))) : B_BAD_VALUE;
}


status_t
BMessage::AddPointer(const char* name, const void* added)
{
	return _Add(name, value(const_cast<void*>(added)));
}


status_t
BMessage::AddRef(const char* name, const entry_ref* added)
{
	return added ? _Add(name, value(*added)) : B_BAD_VALUE;
}


status_t
BMessage::AddMessenger(const char* name, BMessenger added)
{
	return _Add(name, value(added));
}


status_t
BMessage::AddMessage(const char* name, const BMessage* added)
{
	if (!added)
		return B_BAD_VALUE;
	return _Add(name, value(std::make_shared<const BMessage>(*added)));
}


status_t
BMessage::FindString(const char* name, const char** out) const
{
	return FindString(name, 0, out);
}


status_t
BMessage::FindString(const char* name, int32 index, const char** out) const
{
	const std::string* found;
	status_t status = _Find(name, index, &found);
	*out = found ? found->c_str() : nullptr;
	return status;
}


const char*
BMessage::FindString(const char* name, int32 index) const
{
	const char* out;
	FindString(name, index, &out);
	return out;
}


status_t
BMessage::FindPointer(const char* name, void** out) const
{
	return _Get(name, 0, out);
}


status_t
BMessage::FindPointer(const char* name, int32 index, void** out) const
{
	return _Get(name, index, out);
}


status_t
BMessage::FindRef(const char* name, entry_ref* out) const
{
	return _Get(name, 0, out);
}


status_t
BMessage::FindRef(const char* name, int32 index, entry_ref* out) const
{
	return _Get(name, index, out);
}


status_t
BMessage::FindMessenger(const char* name, BMessenger* out) const
{
	return _Get(name, 0, out);
}


status_t
BMessage::FindMessenger(const char* name, int32 index, BMessenger* out) const
{
	return _Get(name, index, out);
}


status_t
BMessage::FindMessage(const char* name, BMessage* out) const
{
	return FindMessage(name, 0, out);
}


status_t
BMessage::FindMessage(const char* name, int32 index, BMessage* out) const
{
	const std::shared_ptr<const BMessage>* found;
	status_t status = _Find(name, index, &found);
	// A copy of its own first: the output may be the very message that holds what is found.
	*out = found ? BMessage(**found) : BMessage();
	return status;
}


// Each type's question.
using pointer = void*;

#define KITS_MESSAGE_HAS(Name, T)                                                                  \
	bool BMessage::Has##Name(const char* name, int32 index) const                                  \
	{                                                                                              \
		const T* found;                                                                            \
		return _Find(name, index, &found) == B_OK;                                                 \
	}

KITS_MESSAGE_HAS(Int8, int8)
KITS_MESSAGE_HAS(Int16, int16)
KITS_MESSAGE_HAS(Int32, int32)
KITS_MESSAGE_HAS(Int64, int64)
KITS_MESSAGE_HAS(Bool, bool)
KITS_MESSAGE_HAS(Float, float)
KITS_MESSAGE_HAS(Point, BPoint)
KITS_MESSAGE_HAS(Rect, BRect)
KITS_MESSAGE_HAS(String, std::string)
KITS_MESSAGE_HAS(Pointer, pointer)
KITS_MESSAGE_HAS(Ref, entry_ref)
KITS_MESSAGE_HAS(Message, std::shared_ptr<const BMessage>)

#undef KITS_MESSAGE_HAS


status_t
BMessage::GetInfo(const char* name, type_code* type, int32* count) const
{
	const field* found = _Field(name);
	if (count)
		*count = found ? (int32)found->values.size() : 0;
	if (!found)
		return B_NAME_NOT_FOUND;
	if (type)
		*type = type_codes[found->values.front().index()];
	return B_OK;
}


status_t
BMessage::RemoveName(const char* name)
{
	const field* found = _Field(name);
	if (!found)
		return B_NAME_NOT_FOUND;
	fFields.erase(fFields.begin() + (found - fFields.data()));
	return B_OK;
}


status_t
BMessage::MakeEmpty()
{
	fFields.clear();
	return B_OK;
}


bool
BMessage::IsEmpty() const
{
	return fFields.empty();
}


BMessenger
BMessage::ReturnAddress() const
{
	return fReply;
}


status_t
BMessage::SendReply(uint32 command, BHandler* replyTo)
{
	return fReply.SendMessage(command, replyTo);
}


status_t
BMessage::SendReply(BMessage* reply, BHandler* replyTo)
{
	return fReply.SendMessage(reply, replyTo);
}


bool
BMessage::WasDropped() const
{
	return fDropped;
}


BPoint
BMessage::DropPoint() const
{
	return fDropPoint;
}
