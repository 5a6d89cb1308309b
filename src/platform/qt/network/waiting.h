// Waiting for the network in the middle of the program's work.
#pragma once

#include <functional>

#include "platform/types.h"

class BusySign;
class Transfer;

// A server that says nothing for longer is given up. Tests are less patient.
inline int longestSilence = 30'000;  // milliseconds

// Keeps the window alive, and shows the sign, until the condition holds or the transfer has ended;
// input is dropped meanwhile, but Escape and a tap on the sign end the wait. 0, or
// ERROR_INTERNET_TIMEOUT or ERROR_INTERNET_OPERATION_CANCELLED.
DWORD AwaitTransfer(const Transfer& transfer, BusySign& sign,
                    const std::function<bool()>& condition);
