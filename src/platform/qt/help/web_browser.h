// The user's own browser.
#pragma once

class QUrl;

bool IsWebAddress(const QUrl& address);

// False when the address is not http or https, or when no browser can be started; the player has
// been told so in the second case. The desktop's opener can still fail later: it is told of then.
bool OpenInBrowser(const QUrl& address);
