#include "support/certificates.h"

#include <cstdlib>
#include <stdexcept>

#include "support/temporary_home.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* newKey = " -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes";

}  // namespace

Certificates::Certificates() {
    std::string pattern = (fs::temp_directory_path() / "quadrel-certificates-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no temporary folder can be made");
    }
    folder = pattern;
    MakeAuthority("authority");
    setenv("SSL_CERT_FILE", (folder / "authority.pem").c_str(), 1);
}

Certificates::~Certificates() {
    unsetenv("SSL_CERT_FILE");
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

ServerCertificate Certificates::Good() const {
    return Make("good", "authority", "IP:127.0.0.1", 2);
}

ServerCertificate Certificates::OfOtherHost() const {
    return Make("other", "authority", "DNS:other.example.com", 2);
}

ServerCertificate Certificates::Expired() const {
    return Make("expired", "authority", "IP:127.0.0.1", -1);
}

ServerCertificate Certificates::FromStranger() const {
    MakeAuthority("stranger");
    return Make("strange", "stranger", "IP:127.0.0.1", 2);
}

void Certificates::MakeAuthority(const std::string& name) const {
    Run("req -x509 -days 2 -subj /CN=" + name + newKey + " -keyout " + name + ".key -out " + name +
        ".pem -addext basicConstraints=critical,CA:TRUE");
}

ServerCertificate Certificates::Make(const std::string& name, const std::string& authority,
                                     const std::string& host, int days) const {
    WriteBytes(folder / "extensions", "subjectAltName=" + host + "\nbasicConstraints=CA:FALSE\n");
    Run("req -subj /CN=" + name + newKey + " -keyout " + name + ".key -out " + name + ".csr");
    Run("x509 -req -in " + name + ".csr -days " + std::to_string(days) + " -CA " + authority +
        ".pem -CAkey " + authority + ".key -extfile extensions -out " + name + ".pem");
    return {folder / (name + ".pem"), folder / (name + ".key")};
}

void Certificates::Run(const std::string& arguments) const {
    const std::string command =
        "cd '" + folder.string() + "' && openssl " + arguments + " 2>openssl.log";
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error(command + "\n" + ReadBytes(folder / "openssl.log"));
    }
}
