// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/errno_status.h"
#include <Node.h>
#include <NodeInfo.h>
#include <StorageDefs.h>

#include <cerrno>
#include <cstring>
#include <sys/xattr.h>

namespace {

// Where the desktops of this system keep it, without a closing NUL.
constexpr const char* type_attribute = "user.mime_type";

}


BNodeInfo::BNodeInfo(BNode* node) : fNode(node) {}


status_t
BNodeInfo::InitCheck() const
{
	return fNode != nullptr && fNode->InitCheck() == B_OK ? B_OK : B_NO_INIT;
}


status_t
BNodeInfo::SetType(const char* type)
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	const int descriptor = fNode->AttributeDescriptor();
	if (type == nullptr) {
		return fremovexattr(descriptor, type_attribute) == 0 ? B_OK : status_of_errno(errno);
	}
	const size_t length = strlen(type);
	if (length >= B_MIME_TYPE_LENGTH) {
		return B_BAD_VALUE;
	}
	return fsetxattr(descriptor, type_attribute, type, length, 0) == 0 ? B_OK
																	   : status_of_errno(errno);
}


status_t
BNodeInfo::GetType(char* type) const
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	if (type == nullptr) {
		return B_BAD_VALUE;
	}
	char value[B_MIME_TYPE_LENGTH] = {};
	if (fgetxattr(fNode->AttributeDescriptor(), type_attribute, value, sizeof(value) - 1) < 0) {
		return status_of_errno(errno);
	}
	strcpy(type, value);
	return B_OK;
}
