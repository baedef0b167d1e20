// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// The values programs and stored messages were built with. Nearly all is decided by the compiler;
// what is not has a test at the end.
#include <AppDefs.h>
#include <Errors.h>
#include <fcntl.h>
#include <GraphicsDefs.h>
#include <InterfaceDefs.h>
#include <OS.h>
#include <Point.h>
#include <Rect.h>
#include <StorageDefs.h>
#include <SupportDefs.h>
#include <TypeConstants.h>

#include <gtest/gtest.h>
#include <type_traits>

static_assert(std::is_same_v<int8, signed char>);
static_assert(std::is_same_v<uint8, unsigned char>);
static_assert(std::is_same_v<int16, short>);
static_assert(std::is_same_v<uint16, unsigned short>);
static_assert(std::is_same_v<int32, int>);
static_assert(std::is_same_v<uint32, unsigned int>);
static_assert(std::is_same_v<int64, long>);
static_assert(std::is_same_v<uint64, unsigned long>);
static_assert(std::is_same_v<uchar, unsigned char>);
static_assert(std::is_same_v<status_t, int32>);
static_assert(std::is_same_v<bigtime_t, int64>);
static_assert(std::is_same_v<type_code, uint32>);
static_assert(std::is_same_v<thread_id, int32>);
static_assert(std::is_same_v<team_id, int32>);
static_assert(std::is_same_v<port_id, int32>);
static_assert(std::is_same_v<sem_id, int32>);
static_assert(std::is_same_v<area_id, int32>);
static_assert(std::is_same_v<ssize_t, long>);
static_assert(std::is_same_v<size_t, unsigned long>);
static_assert(sizeof(int8) == 1 && sizeof(uint8) == 1);
static_assert(sizeof(int16) == 2 && sizeof(uint16) == 2);
static_assert(sizeof(int32) == 4 && sizeof(uint32) == 4);
static_assert(sizeof(int64) == 8 && sizeof(uint64) == 8);
static_assert(sizeof(off_t) == 8 && std::is_signed_v<off_t>);
static_assert(TRUE == 1 && FALSE == 0);
static_assert(min_c(2, 3) == 2 && min_c(3, 2) == 2);
static_assert(max_c(2, 3) == 3 && max_c(3, 2) == 3);

static_assert(std::is_same_v<decltype(B_OK), const status_t>);
static_assert(B_OK == 0);
static_assert(B_NO_ERROR == 0);
static_assert(B_ERROR == -1);
static_assert(B_NO_MEMORY == static_cast<int32>(0x80000000));
static_assert(B_IO_ERROR == static_cast<int32>(0x80000001));
static_assert(B_PERMISSION_DENIED == static_cast<int32>(0x80000002));
static_assert(B_BAD_INDEX == static_cast<int32>(0x80000003));
static_assert(B_BAD_TYPE == static_cast<int32>(0x80000004));
static_assert(B_BAD_VALUE == static_cast<int32>(0x80000005));
static_assert(B_MISMATCHED_VALUES == static_cast<int32>(0x80000006));
static_assert(B_NAME_NOT_FOUND == static_cast<int32>(0x80000007));
static_assert(B_TIMED_OUT == static_cast<int32>(0x80000009));
static_assert(B_WOULD_BLOCK == static_cast<int32>(0x8000000B));
static_assert(B_NO_INIT == static_cast<int32>(0x8000000D));
static_assert(B_BAD_PORT_ID == static_cast<int32>(0x80001200));
static_assert(B_BAD_HANDLER == static_cast<int32>(0x80002003));
static_assert(B_FILE_ERROR == static_cast<int32>(0x80006000));
static_assert(B_FILE_EXISTS == static_cast<int32>(0x80006002));
static_assert(B_ENTRY_NOT_FOUND == static_cast<int32>(0x80006003));
static_assert(B_NOT_A_DIRECTORY == static_cast<int32>(0x80006005));
static_assert(B_IS_A_DIRECTORY == static_cast<int32>(0x80006009));

static_assert(std::is_same_v<decltype(B_INT32_TYPE), const type_code>);
static_assert(B_BOOL_TYPE == 0x424F4F4C);
static_assert(B_INT8_TYPE == 0x42595445);
static_assert(B_UINT8_TYPE == 0x55425954);
static_assert(B_INT16_TYPE == 0x53485254);
static_assert(B_UINT16_TYPE == 0x55534854);
static_assert(B_INT32_TYPE == 0x4C4F4E47);
static_assert(B_UINT32_TYPE == 0x554C4E47);
static_assert(B_INT64_TYPE == 0x4C4C4E47);
static_assert(B_FLOAT_TYPE == 0x464C4F54);
static_assert(B_DOUBLE_TYPE == 0x44424C45);
static_assert(B_POINT_TYPE == 0x42504E54);
static_assert(B_RECT_TYPE == 0x52454354);
static_assert(B_STRING_TYPE == 0x43535452);
static_assert(B_POINTER_TYPE == 0x504E5452);
static_assert(B_REF_TYPE == 0x52524546);
static_assert(B_MESSAGE_TYPE == 0x4D534747);
static_assert(B_MESSENGER_TYPE == 0x4D534E47);
static_assert(B_RAW_TYPE == 0x52415754);
static_assert(B_MIME_STRING_TYPE == 0x4D494D53);
static_assert(B_ANY_TYPE == 0x414E5954);

static_assert(B_ABOUT_REQUESTED == 0x5F414252);
static_assert(B_CANCEL == 0x5F434E43);
static_assert(B_REFS_RECEIVED == 0x5F525243);
static_assert(B_ARGV_RECEIVED == 0x5F415247);
static_assert(B_READY_TO_RUN == 0x5F525452);
static_assert(B_QUIT_REQUESTED == 0x5F515251);
static_assert(B_MOUSE_DOWN == 0x5F4D444E);
static_assert(B_MOUSE_UP == 0x5F4D5550);
static_assert(B_MOUSE_MOVED == 0x5F4D4D56);
static_assert(B_MOUSE_WHEEL_CHANGED == 0x5F4D5743);
static_assert(B_KEY_DOWN == 0x5F4B5944);
static_assert(B_KEY_UP == 0x5F4B5955);
static_assert(B_UNMAPPED_KEY_DOWN == 0x5F554B44);
static_assert(B_UNMAPPED_KEY_UP == 0x5F554B55);
static_assert(B_MODIFIERS_CHANGED == 0x5F4D4348);
static_assert(B_PULSE == 0x5F50554C);
static_assert(B_WINDOW_RESIZED == 0x5F575253);
static_assert(B_WINDOW_MOVED == 0x5F574D56);
static_assert(B_WINDOW_ACTIVATED == 0x5F414354);
static_assert(B_ZOOM == 0x5F575A4D);
static_assert(B_MINIMIZE == 0x5F574D4E);
static_assert(B_INVALIDATE == 0x5F49564C);
static_assert(B_VIEW_RESIZED == 0x5F565253);
static_assert(B_VIEW_MOVED == 0x5F564D56);
static_assert(B_VALUE_CHANGED == 0x5F564348);
static_assert(_UPDATE_ == 0x5F555044);
static_assert(_QUIT_ == 0x5F514954);
static_assert(_MESSAGE_DROPPED_ == 0x5F4D4450);
static_assert(B_SAVE_REQUESTED == 0x53415645);
static_assert(B_SIMPLE_DATA == 0x44415441);
static_assert(B_COPY == 0x434F5059);
static_assert(B_PASTE == 0x50535445);
static_assert(B_CUT == 0x43435554);
static_assert(B_SELECT_ALL == 0x53414C4C);
static_assert(B_REPLY == 0x52504C59);
static_assert(B_NO_REPLY == 0x4E4F4E45);
static_assert(B_MESSAGE_NOT_UNDERSTOOD == 0x4D4E4F54);
static_assert(B_CONTROL_INVOKED == 0x4349564B);
static_assert(B_CONTROL_MODIFIED == 0x434D4F44);
static_assert(std::is_same_v<decltype(B_KEY_DOWN), system_message_code>);
static_assert(std::is_same_v<decltype(B_SAVE_REQUESTED), command_code>);

static_assert(B_BACKSPACE == 0x08);
static_assert(B_TAB == 0x09);
static_assert(B_ENTER == 0x0A);
static_assert(B_RETURN == 0x0A);
static_assert(B_ESCAPE == 0x1B);
static_assert(B_SPACE == 0x20);
static_assert(B_DELETE == 0x7F);
static_assert(B_INSERT == 0x05);
static_assert(B_HOME == 0x01);
static_assert(B_END == 0x04);
static_assert(B_PAGE_UP == 0x0B);
static_assert(B_PAGE_DOWN == 0x0C);
static_assert(B_FUNCTION_KEY == 0x10);
static_assert(B_LEFT_ARROW == 0x1C);
static_assert(B_RIGHT_ARROW == 0x1D);
static_assert(B_UP_ARROW == 0x1E);
static_assert(B_DOWN_ARROW == 0x1F);
static_assert(B_SUBSTITUTE == 0x1A);
static_assert(B_SHIFT_KEY == 0x01);
static_assert(B_COMMAND_KEY == 0x02);
static_assert(B_CONTROL_KEY == 0x04);
static_assert(B_CAPS_LOCK == 0x08);
static_assert(B_SCROLL_LOCK == 0x10);
static_assert(B_NUM_LOCK == 0x20);
static_assert(B_OPTION_KEY == 0x40);
static_assert(B_MENU_KEY == 0x80);
static_assert(B_LEFT_SHIFT_KEY == 0x100);
static_assert(B_RIGHT_SHIFT_KEY == 0x200);
static_assert(B_LEFT_COMMAND_KEY == 0x400);
static_assert(B_RIGHT_COMMAND_KEY == 0x800);
static_assert(B_LEFT_CONTROL_KEY == 0x1000);
static_assert(B_RIGHT_CONTROL_KEY == 0x2000);
static_assert(B_LEFT_OPTION_KEY == 0x4000);
static_assert(B_RIGHT_OPTION_KEY == 0x8000);
static_assert(B_HORIZONTAL == 0);
static_assert(B_VERTICAL == 1);
static_assert(B_WIDTH_AS_USUAL == 0);
static_assert(B_WIDTH_FROM_WIDEST == 1);
static_assert(B_WIDTH_FROM_LABEL == 2);
static_assert(B_ALIGN_LEFT == 0);
static_assert(B_ALIGN_RIGHT == 1);
static_assert(B_ALIGN_CENTER == 2);
static_assert(B_ROUND_JOIN == 0);
static_assert(B_MITER_JOIN == 1);
static_assert(B_BEVEL_JOIN == 2);
static_assert(B_BUTT_JOIN == 3);
static_assert(B_SQUARE_JOIN == 4);
static_assert(B_ROUND_CAP == 0);
static_assert(B_BUTT_CAP == 3);
static_assert(B_SQUARE_CAP == 4);
static_assert(B_EVEN_ODD == 0);
static_assert(B_NONZERO == 1);

static_assert(B_OP_COPY == 0);
static_assert(B_OP_OVER == 1);
static_assert(B_OP_ERASE == 2);
static_assert(B_OP_INVERT == 3);
static_assert(B_OP_ADD == 4);
static_assert(B_OP_SUBTRACT == 5);
static_assert(B_OP_BLEND == 6);
static_assert(B_OP_MIN == 7);
static_assert(B_OP_MAX == 8);
static_assert(B_OP_SELECT == 9);
static_assert(B_OP_ALPHA == 10);
static_assert(B_RGB32 == 0x0008);
static_assert(B_RGBA32 == 0x2008);
static_assert(B_RGB24 == 3);
static_assert(B_CMAP8 == 4);
static_assert(B_GRAY8 == 2);
static_assert(B_GRAY1 == 1);
static_assert(B_RGB_32_BIT == 0x0008);
static_assert(B_COLOR_8_BIT == 4);
static_assert(B_MONOCHROME_1_BIT == 1);
static_assert(sizeof(pattern) == 8 && std::is_aggregate_v<pattern>);
static_assert(sizeof(rgb_color) == 4 && std::is_aggregate_v<rgb_color>);

static_assert(sizeof(BPoint) == 8 && std::is_trivially_copyable_v<BPoint>);
static_assert(sizeof(BRect) == 16 && std::is_trivially_copyable_v<BRect>);

static_assert(B_READ_ONLY == O_RDONLY);
static_assert(B_WRITE_ONLY == O_WRONLY);
static_assert(B_READ_WRITE == O_RDWR);
static_assert(B_CREATE_FILE == O_CREAT);
static_assert(B_FAIL_IF_EXISTS == O_EXCL);
static_assert(B_ERASE_FILE == O_TRUNC);
static_assert(B_OPEN_AT_END == O_APPEND);
static_assert(B_FILE_NODE == 1);
static_assert(B_SYMLINK_NODE == 2);
static_assert(B_DIRECTORY_NODE == 4);
static_assert(B_ANY_NODE == 7);
static_assert(B_FILE_NAME_LENGTH == 256);
static_assert(B_PATH_NAME_LENGTH == 1024);
static_assert(B_MIME_TYPE_LENGTH == 240);

static_assert(B_INFINITE_TIMEOUT == 0x7FFFFFFFFFFFFFFF);
static_assert(B_NORMAL_PRIORITY == 10);
static_assert(B_DISPLAY_PRIORITY == 15);


TEST(constants, the_miter_limit_is_ten)
{
	EXPECT_EQ(B_DEFAULT_MITER_LIMIT, 10.0F);
}
