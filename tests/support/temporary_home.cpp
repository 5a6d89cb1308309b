#include "support/temporary_home.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

TemporaryHome::TemporaryHome() {
    fs::create_directories(documents());
    fs::create_directories(programFolder());
    setenv("QUADREL_HOME", root().c_str(), 1);
}

TemporaryHome::~TemporaryHome() {
    unsetenv("QUADREL_HOME");
}

std::map<std::string, std::string> TemporaryHome::Files() const {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root())) {
        if (entry.is_regular_file()) {
            files[fs::relative(entry.path(), root()).string()] = ReadBytes(entry.path());
        }
    }
    return files;
}

void WriteBytes(const fs::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (!file.flush()) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

std::string ReadBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path.string());
    }
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}
