// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/malloc32.h"

#include <cstring>
#include <new>


unsigned char*
malloc32(int size)
{
	return new unsigned char[round32(size > 0 ? size : 0)]();
}


unsigned char*
padded32(uint32 size)
{
	uint64 rounded = round32(size);
	unsigned char* array = new (std::nothrow) unsigned char[rounded];
	if (array != nullptr)
		memset(array + size, 0, rounded - size);
	return array;
}
