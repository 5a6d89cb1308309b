// Certificates made for the tests, and what the program under test trusts.
#pragma once

#include <filesystem>
#include <string>

struct ServerCertificate {
    std::filesystem::path certificate;
    std::filesystem::path key;
};

// Makes them with the openssl command in a folder of its own.
class Certificates {
public:
    // Names its authority in SSL_CERT_FILE for as long as it lives.
    Certificates();
    ~Certificates();
    Certificates(const Certificates&) = delete;
    Certificates& operator=(const Certificates&) = delete;

    // For the host 127.0.0.1, from the trusted authority.
    ServerCertificate Good() const;
    // With one fault each.
    ServerCertificate OfOtherHost() const;
    ServerCertificate Expired() const;
    ServerCertificate FromStranger() const;

private:
    ServerCertificate Make(const std::string& name, const std::string& authority,
                           const std::string& host, int days) const;
    void MakeAuthority(const std::string& name) const;
    void Run(const std::string& arguments) const;

    std::filesystem::path folder;
};
