// A fresh home for the handheld's folders, gone at the end of the scope.
#pragma once

#include <QtCore/QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    if (!(file << bytes).flush()) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

class TemporaryHome {
public:
    // Sets QUADREL_HOME to a new folder that holds both of the handheld's folders, empty.
    TemporaryHome() {
        std::filesystem::create_directories(documents());
        std::filesystem::create_directories(programFolder());
        setenv("QUADREL_HOME", root().c_str(), 1);
    }

    ~TemporaryHome() {
        unsetenv("QUADREL_HOME");
    }

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
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        for (const std::filesystem::directory_entry& entry :
             std::filesystem::recursive_directory_iterator(root())) {
            if (entry.is_regular_file()) {
                files[std::filesystem::relative(entry.path(), root()).string()] =
                    ReadBytes(entry.path());
            }
        }
        return files;
    }

    std::filesystem::path programFolder() const {
        return root() / "quadrel";
    }

private:
    QTemporaryDir folder;
};
