// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What holds for fields of numbers and places alike, for each type of them.
#include <Errors.h>
#include <Message.h>

#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace {

// The calls of one type, two values of it and its code. The releases of the formatter lay
// functions in a macro out differently.
// clang-format off
#define FIELD_TYPE(Name, T, Code, First, Second)                                                   \
	struct Name##_field {                                                                          \
		using type = T;                                                                            \
		static constexpr type_code code = Code;                                                    \
		static T first() { return First; }                                                         \
		static T second() { return Second; }                                                       \
		static status_t add(BMessage& m, T v) { return m.Add##Name("field", v); }                  \
		static status_t add_null(BMessage& m) { return m.Add##Name(nullptr, First); }              \
		static status_t find(const BMessage& m, T* out) { return m.Find##Name("field", out); }     \
		static status_t find_null(const BMessage& m, T* out)                                       \
		{                                                                                          \
			return m.Find##Name(nullptr, out);                                                     \
		}                                                                                          \
		static status_t find(const BMessage& m, int32 i, T* out)                                   \
		{                                                                                          \
			return m.Find##Name("field", i, out);                                                  \
		}                                                                                          \
		static T found(const BMessage& m) { return m.Find##Name("field"); }                        \
		static T found(const BMessage& m, int32 i) { return m.Find##Name("field", i); }            \
	}
// clang-format on

FIELD_TYPE(Int8, int8, 'BYTE', -128, 127);
FIELD_TYPE(Int16, int16, 'SHRT', -32768, 32767);
FIELD_TYPE(Int32, int32, 'LONG', std::numeric_limits<int32>::min(), 2147483647);
FIELD_TYPE(Int64, int64, 'LLNG', std::numeric_limits<int64>::min(), 9223372036854775807);
FIELD_TYPE(Bool, bool, 'BOOL', true, false);
FIELD_TYPE(Float, float, 'FLOT', 0.1f, -3.4028235e38f);
FIELD_TYPE(Double, double, 'DBLE', 0.1, -1.7976931348623157e308);
FIELD_TYPE(Point, BPoint, 'BPNT', BPoint(1.5f, -2), BPoint(32000, 7));
FIELD_TYPE(Rect, BRect, 'RECT', BRect(1, 2, 3, 4.5f), BRect(9, 8, -7, -6));

template <typename Field>
class message_field : public testing::Test {
protected:
	message_field()
	{
		Field::add(fThree, Field::first());
		Field::add(fThree, Field::second());
		Field::add(fThree, Field::first());
	}

	BMessage fThree;
};

using all_fields = testing::Types<Int8_field, Int16_field, Int32_field, Int64_field, Bool_field,
	Float_field, Double_field, Point_field, Rect_field>;
TYPED_TEST_SUITE(message_field, all_fields);

}


TYPED_TEST(message_field, comes_back_as_it_went_in)
{
	using type = typename TypeParam::type;
	BMessage one;
	EXPECT_EQ(TypeParam::add(one, TypeParam::second()), B_OK);
	type out = TypeParam::first();
	EXPECT_EQ(TypeParam::find(one, &out), B_OK);
	EXPECT_EQ(out, TypeParam::second());
	EXPECT_EQ(TypeParam::found(one), TypeParam::second());
}


TYPED_TEST(message_field, values_added_again_keep_their_order)
{
	using type = typename TypeParam::type;
	type out[3] = {TypeParam::second(), TypeParam::first(), TypeParam::second()};
	for (int32 i = 0; i < 3; i++)
		EXPECT_EQ(TypeParam::find(this->fThree, i, &out[i]), B_OK);
	EXPECT_EQ(out[0], TypeParam::first());
	EXPECT_EQ(out[1], TypeParam::second());
	EXPECT_EQ(out[2], TypeParam::first());
	EXPECT_EQ(TypeParam::found(this->fThree, 1), TypeParam::second());
}


TYPED_TEST(message_field, past_the_last_index_there_is_nothing)
{
	using type = typename TypeParam::type;
	for (int32 index : {3, 4, 2147483647, -1, std::numeric_limits<int32>::min()}) {
		type out = TypeParam::first();
		EXPECT_EQ(TypeParam::find(this->fThree, index, &out), B_BAD_INDEX) << index;
		EXPECT_EQ(out, type()) << index;
		EXPECT_EQ(TypeParam::found(this->fThree, index), type()) << index;
	}
}


TYPED_TEST(message_field, a_missing_name_gives_nothing)
{
	using type = typename TypeParam::type;
	const BMessage empty;
	type out = TypeParam::first();
	EXPECT_EQ(TypeParam::find(empty, &out), B_NAME_NOT_FOUND);
	EXPECT_EQ(out, type());
	out = TypeParam::first();
	EXPECT_EQ(TypeParam::find(empty, 0, &out), B_NAME_NOT_FOUND);
	EXPECT_EQ(out, type());
	EXPECT_EQ(TypeParam::found(empty), type());
}


TYPED_TEST(message_field, is_not_found_by_any_other_type)
{
	BMessage& message = this->fThree;
	int found = 0;
	type_code code = 0;
	int8 byte;
	int16 word;
	int32 number;
	int64 wide;
	bool flag;
	float real;
	double exact;
	BPoint point;
	BRect rect;
	for (status_t status : {message.FindInt8("field", &byte), message.FindInt16("field", &word),
			 message.FindInt32("field", &number), message.FindInt64("field", &wide),
			 message.FindBool("field", &flag), message.FindFloat("field", &real),
			 message.FindDouble("field", &exact), message.FindPoint("field", &point),
			 message.FindRect("field", &rect)}) {
		found += status == B_OK;
		EXPECT_TRUE(status == B_OK || status == B_BAD_TYPE);
	}
	EXPECT_EQ(found, 1);
	EXPECT_EQ(message.GetInfo("field", &code), B_OK);
	EXPECT_EQ(code, TypeParam::code);
}


TYPED_TEST(message_field, of_another_type_gives_nothing)
{
	using type = typename TypeParam::type;
	BMessage text;
	text.AddString("field", "7");
	type out = TypeParam::first();
	EXPECT_EQ(TypeParam::find(text, &out), B_BAD_TYPE);
	EXPECT_EQ(out, type());
	// The type is looked at before the index.
	out = TypeParam::first();
	EXPECT_EQ(TypeParam::find(text, 5, &out), B_BAD_TYPE);
	EXPECT_EQ(out, type());
	EXPECT_EQ(TypeParam::found(text), type());
}


TYPED_TEST(message_field, takes_no_value_of_another_type)
{
	BMessage text;
	text.AddString("field", "first");
	EXPECT_EQ(TypeParam::add(text, TypeParam::first()), B_BAD_TYPE);
	EXPECT_STREQ(text.FindString("field"), "first");
	EXPECT_EQ(this->fThree.AddString("field", "fourth"), B_BAD_TYPE);
	int32 count = 0;
	EXPECT_EQ(this->fThree.GetInfo("field", nullptr, &count), B_OK);
	EXPECT_EQ(count, 3);
}


TYPED_TEST(message_field, without_a_name_is_refused)
{
	using type = typename TypeParam::type;
	BMessage message;
	EXPECT_EQ(TypeParam::add_null(message), B_BAD_VALUE);
	EXPECT_TRUE(message.IsEmpty());
	type out = TypeParam::first();
	EXPECT_EQ(TypeParam::find_null(this->fThree, &out), B_NAME_NOT_FOUND);
	EXPECT_EQ(out, type());
}


// What a failed look-up leaves behind, in literal values.
TEST(message_look_up, a_failed_one_zeroes_what_it_was_to_fill)
{
	const BMessage empty;
	int32 number = 7;
	bool flag = true;
	double real = 7;
	BPoint point(7, 7);
	BRect rect(7, 7, 7, 7);
	const char* text = "seven";
	empty.FindInt32("x", &number);
	empty.FindBool("x", &flag);
	empty.FindDouble("x", &real);
	empty.FindPoint("x", &point);
	empty.FindRect("x", &rect);
	empty.FindString("x", &text);
	EXPECT_EQ(number, 0);
	EXPECT_FALSE(flag);
	EXPECT_EQ(real, 0);
	EXPECT_EQ(point, BPoint(0, 0));
	EXPECT_FALSE(rect.IsValid());
	EXPECT_EQ(text, nullptr);
}


TEST(message_look_up, a_narrow_number_is_not_found_as_a_wide_one)
{
	BMessage message;
	message.AddInt16("table", 5);
	int32 wide = 7;
	EXPECT_EQ(message.FindInt32("table", &wide), B_BAD_TYPE);
	EXPECT_EQ(wide, 0);
	EXPECT_EQ(message.FindInt32("table"), 0);
	EXPECT_EQ(message.FindInt16("table"), 5);
}


TEST(message_question, tells_name_index_and_type)
{
	BMessage message;
	message.AddInt8("byte", 1);
	message.AddInt16("word", 1);
	message.AddInt32("number", 1);
	message.AddInt64("wide", 1);
	message.AddBool("flag", false);
	message.AddFloat("real", 1);
	message.AddPoint("point", BPoint());
	message.AddRect("rect", BRect());
	message.AddString("text", "");
	message.AddPointer("pointer", nullptr);
	EXPECT_TRUE(message.HasInt8("byte") && !message.HasInt8("byte", 1));
	EXPECT_TRUE(message.HasInt16("word") && !message.HasInt16("word", 1));
	EXPECT_TRUE(message.HasInt32("number") && !message.HasInt32("number", 1));
	EXPECT_TRUE(message.HasInt64("wide") && !message.HasInt64("wide", 1));
	EXPECT_TRUE(message.HasBool("flag") && !message.HasBool("flag", 1));
	EXPECT_TRUE(message.HasFloat("real") && !message.HasFloat("real", 1));
	EXPECT_TRUE(message.HasPoint("point") && !message.HasPoint("point", 1));
	EXPECT_TRUE(message.HasRect("rect") && !message.HasRect("rect", 1));
	EXPECT_TRUE(message.HasString("text") && !message.HasString("text", 1));
	EXPECT_TRUE(message.HasPointer("pointer") && !message.HasPointer("pointer", 1));
	EXPECT_FALSE(message.HasInt32("byte"));
	EXPECT_FALSE(message.HasInt32("nothing"));
	EXPECT_FALSE(message.HasInt32("number", -1));
	EXPECT_FALSE(message.HasRef("text"));
	EXPECT_FALSE(message.HasMessage("text"));
}
