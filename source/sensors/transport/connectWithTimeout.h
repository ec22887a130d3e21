#pragma once

#include <sys/socket.h>

namespace skyvane {

/// Connects a blocking stream socket within a limit, and leaves it blocking. The result is 0 on success, the socket's
/// error number when the peer refused, and -1 on time-out or when a step failed.
int connectWithTimeout(int socket, unsigned milliseconds, const sockaddr* address, int length);

enum class SocketEvent { Readable, Writable };

/// True when the event came within the limit; works for handles of any number. A signal doesn't shorten the wait.
bool waitForSocket(int socket, SocketEvent event, unsigned milliseconds);

} // namespace skyvane
