// Sending messages, and the loop that takes them out of the queue.
#pragma once

// Whether a window procedure is running, so that a new message would nest inside it.
bool InsideProcedure();
