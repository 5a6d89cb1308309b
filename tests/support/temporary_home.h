// A fresh home for the handheld's folders, gone at the end of the scope.
#pragma once

#include <QtCore/QTemporaryDir>
#include <filesystem>
#include <map>
#include <string>

class TemporaryHome {
public:
    // Sets QUADREL_HOME to a new folder that holds both of the handheld's folders, empty.
    TemporaryHome();
    ~TemporaryHome();

    std::filesystem::path root() const {
        return folder.path().toStdString();
    }
    std::filesystem::path documents() const {
        return root() / "Documents";
    }
    std::filesystem::path stateFile() const {
        return programFolder() / "quadrel.dat";
    }
    // Every file under the home and what is in it.
    std::map<std::string, std::string> Files() const;
    std::filesystem::path programFolder() const {
        return root() / "quadrel";
    }

private:
    QTemporaryDir folder;
};

void WriteBytes(const std::filesystem::path& path, const std::string& bytes);
std::string ReadBytes(const std::filesystem::path& path);
