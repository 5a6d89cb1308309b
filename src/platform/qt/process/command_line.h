// What stands behind the program's name when it is started.
#pragma once

#include <QtCore/QStringList>
#include <optional>

// Answers --help and --version, and complains about an option that nobody knows; the exit code when
// the start ends with that. For the arguments that the toolkit does not take for itself.
std::optional<int> AnswerOptions(const QStringList& arguments);

// The files among them, relative ones from the folder that the program was started in.
QStringList FilesNamed(const QStringList& arguments);
