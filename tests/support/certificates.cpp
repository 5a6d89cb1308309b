#include "support/certificates.h"

#include <cstdlib>
#include <stdexcept>

#include "support/temporary_home.h"

Certificates::Certificates() {
    setenv("SSL_CERT_FILE", Make("authority").c_str(), 1);
}

Certificates::~Certificates() {
    unsetenv("SSL_CERT_FILE");
}

std::filesystem::path Certificates::Make(const std::string& name, const std::string& host, int days,
                                         const std::string& signer) const {
    const std::string file = name + ".pem";
    const std::string signature =
        signer == name ? " -signkey " + file : " -CA " + signer + ".pem -CAkey " + signer + ".pem";
    const std::string command =
        "cd '" + folder.path().toStdString() +
        "' && { openssl req -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -subj /CN=" +
        name + " -addext basicConstraints=critical,CA:TRUE -addext subjectAltName=" + host +
        " -keyout " + file + " -out request && openssl x509 -req -in request -days " +
        std::to_string(days) + " -copy_extensions copy" + signature + " >>" + file +
        "; } 2>openssl.log";
    if (std::system(command.c_str()) != 0) {
        const std::filesystem::path log(folder.filePath("openssl.log").toStdString());
        throw std::runtime_error(command + "\n" + ReadBytes(log));
    }
    return folder.filePath(QString::fromStdString(file)).toStdString();
}
