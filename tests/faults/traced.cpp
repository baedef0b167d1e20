// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "faults/traced.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#ifdef __x86_64__

namespace {

constexpr int left_open_shift = 2;
constexpr int answers = (1 << left_open_shift) - 1;

// Tells the tracer that the work is done. The work itself never asks who its parent is.
constexpr long end_of_work = SYS_getppid;


int
count_open()
{
	int count = 0;
	for (int i = 0; i < 64; i++) {
		count += fcntl(i, F_GETFD) >= 0 ? 1 : 0;
	}
	return count;
}


[[noreturn]] void
run_here(const std::function<void()>& prepare, const std::function<int()>& work)
{
	// Out of memory, it would say so.
	dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
	prepare();
	const int before = count_open();
	if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
		_exit(255);
	}
	kill(getpid(), SIGSTOP);
	const int answer = work();
	syscall(end_of_work);
	_exit(answer | ((count_open() - before) << left_open_shift));
}


// Calls of the process for memory. They are made now and then, and not for the disk.
bool
is_for_memory(const user_regs_struct& registers)
{
	const auto number = static_cast<long>(registers.orig_rax);
	return number == SYS_brk || number == SYS_munmap || number == SYS_madvise
		|| (number == SYS_mmap && (registers.r10 & MAP_ANONYMOUS) != 0);
}


class tracer {
public:
	tracer(pid_t process, const rules& always, const fault& once)
		: fProcess(process),
		  fAlways(always),
		  fOnce(once)
	{
	}

	ended_run run()
	{
		int status = wait();
		if (!WIFSTOPPED(status)) {
			throw std::runtime_error("cannot trace a process");
		}
		ptrace(PTRACE_SETOPTIONS, fProcess, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
		int signal = 0;
		while (true) {
			ptrace(fDone ? PTRACE_DETACH : PTRACE_SYSCALL, fProcess, nullptr, signal);
			status = wait();
			if (!WIFSTOPPED(status)) {
				break;
			}
			signal = 0;
			if (WSTOPSIG(status) == (SIGTRAP | 0x80)) {
				at_call();
			} else {
				signal = WSTOPSIG(status);
			}
		}
		fRun.killed = WIFSIGNALED(status);
		if (WIFEXITED(status)) {
			fRun.answer = WEXITSTATUS(status) & answers;
			fRun.left_open = WEXITSTATUS(status) >> left_open_shift;
		}
		return fRun;
	}

private:
	int wait() const
	{
		int status = 0;
		waitpid(fProcess, &status, 0);
		return status;
	}

	// Calls stop twice: before and after they do anything.
	void at_call()
	{
		user_regs_struct registers = {};
		ptrace(PTRACE_GETREGS, fProcess, nullptr, &registers);
		fInside = !fInside;
		if (fInside) {
			before(registers);
		} else {
			after(registers);
		}
	}

	void before(user_regs_struct& registers)
	{
		const system_call call = {static_cast<long>(registers.orig_rax),
			{registers.rdi, registers.rsi, registers.rdx, registers.r10, registers.r8,
				registers.r9}};
		if (call.number == end_of_work) {
			fDone = true;
			return;
		}
		fFault = fault();
		if (is_for_memory(registers)) {
			return;
		}
		fFault = fRun.calls.size() == fOnce.call ? fOnce : fault();
		if (fFault.kind == trouble::NONE && fAlways) {
			fFault.error = fAlways(call);
			fFault.kind = fFault.error != 0 ? trouble::REFUSED : trouble::NONE;
		}
		fRun.calls.push_back(call);
		if (fFault.kind == trouble::OVERTAKEN) {
			fFault.meanwhile();
		}
		if (fFault.kind == trouble::REFUSED || fFault.kind == trouble::KILLED_BEFORE) {
			registers.orig_rax = static_cast<unsigned long long>(-1); // no call at all
		} else if (fFault.kind == trouble::HALVED) {
			registers.rdx /= 2;
		} else {
			return;
		}
		ptrace(PTRACE_SETREGS, fProcess, nullptr, &registers);
		if (fFault.kind == trouble::KILLED_BEFORE) {
			kill(fProcess, SIGKILL);
		}
	}

	void after(user_regs_struct& registers)
	{
		if (fFault.kind == trouble::REFUSED || fFault.kind == trouble::ANSWER_LOST) {
			registers.rax = static_cast<unsigned long long>(-fFault.error);
			ptrace(PTRACE_SETREGS, fProcess, nullptr, &registers);
		} else if (fFault.kind == trouble::KILLED_AFTER) {
			kill(fProcess, SIGKILL);
		}
		// The rest runs by itself.
		fDone = !fAlways && fRun.calls.size() == fOnce.call + 1 && fOnce.kind != trouble::NONE;
	}

	const pid_t fProcess;
	const rules& fAlways;
	const fault fOnce;
	ended_run fRun;
	fault fFault; // of the call that is under way
	bool fInside = false;
	bool fDone = false;
};

}


bool
can_trace()
{
	try {
		return run_traced([] {}, [] { return 3; }, nullptr, fault()).answer == 3;
	} catch (const std::runtime_error&) {
		return false;
	}
}


ended_run
run_traced(const std::function<void()>& prepare, const std::function<int()>& work,
	const rules& always, const fault& once)
{
	const pid_t process = fork();
	if (process < 0) {
		throw std::runtime_error("cannot make a process");
	}
	if (process == 0) {
		run_here(prepare, work);
	}
	return tracer(process, always, once).run();
}

#else

bool
can_trace()
{
	return false;
}


ended_run
run_traced(const std::function<void()>&, const std::function<int()>&, const rules&, const fault&)
{
	throw std::runtime_error("cannot trace a process of this kind");
}

#endif


std::string
name_of(const system_call& call)
{
	static const std::map<long, const char*> names = {{SYS_close, "close"},
		{SYS_clock_nanosleep, "clock_nanosleep"}, {SYS_fallocate, "fallocate"},
		{SYS_fchmod, "fchmod"}, {SYS_fchown, "fchown"}, {SYS_fcntl, "fcntl"},
		{SYS_fgetxattr, "fgetxattr"}, {SYS_flistxattr, "flistxattr"},
		{SYS_fremovexattr, "fremovexattr"}, {SYS_fsetxattr, "fsetxattr"}, {SYS_fstat, "fstat"},
		{SYS_fsync, "fsync"}, {SYS_ftruncate, "ftruncate"}, {SYS_getpid, "getpid"},
		{SYS_linkat, "linkat"}, {SYS_mmap, "mmap"}, {SYS_newfstatat, "newfstatat"},
		{SYS_openat, "openat"}, {SYS_pwrite64, "pwrite64"}, {SYS_readlinkat, "readlinkat"},
		{SYS_renameat, "renameat"}, {SYS_statx, "statx"}, {SYS_unlinkat, "unlinkat"}};
	const auto found = names.find(call.number);
	return found != names.end() ? found->second : "call " + std::to_string(call.number);
}


std::string
name_of_error(int error)
{
	const char* name = strerrorname_np(error);
	return name != nullptr ? name : std::to_string(error);
}
