// Sending messages and queueing them.
#pragma once

// Whether a window procedure is running, so that a new message would nest inside it.
bool InsideProcedure();
