// Certificates made for the tests, and what the program under test trusts.
#pragma once

#include <QtCore/QTemporaryDir>
#include <filesystem>
#include <string>

// Makes them with the openssl command in a folder of its own.
class Certificates {
public:
    // Names its authority in SSL_CERT_FILE for as long as it lives.
    Certificates();
    ~Certificates();

    // The file of a new certificate and its key. One that has its own name as the signer's comes
    // from a stranger, one of a negative number of days has expired.
    std::filesystem::path Make(const std::string& name, const std::string& host = "IP:127.0.0.1",
                               int days = 2, const std::string& signer = "authority") const;

private:
    QTemporaryDir folder;
};
