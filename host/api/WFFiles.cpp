#include "WFFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

#include <sys/stat.h>

bool writeFileAtomically(const std::string& path, std::string_view bytes, std::string& error)
{
    QSaveFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly)) {
        error = "cannot write \"" + path + "\": " + file.errorString().toStdString();
        return false;
    }
    const auto size = static_cast<qint64>(bytes.size());
    if (file.write(bytes.data(), size) != size) {
        error = "cannot write \"" + path + "\": " + file.errorString().toStdString();
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        error = "cannot write \"" + path + "\": " + file.errorString().toStdString();
        return false;
    }
    return true;
}

bool readWholeFile(const std::string& path, std::string& bytes, std::string& error)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "cannot read \"" + path + "\": " + std::strerror(errno);
        return false;
    }
    std::ostringstream buffer;
    buffer << in.rdbuf();
    if (in.bad()) {
        error = "cannot read \"" + path + "\": " + std::strerror(errno);
        return false;
    }
    bytes = std::move(buffer).str();
    return true;
}

bool fileExists(const std::string& path)
{
    struct stat info {};
    return !path.empty() && ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool directoryExists(const std::string& path)
{
    struct stat info {};
    return !path.empty() && ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

std::string parentDirectory(const std::string& path)
{
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    if (slash == 0)
        return "/";
    return path.substr(0, slash);
}

bool makeDirectories(const std::string& path)
{
    if (path.empty() || directoryExists(path))
        return !path.empty();
    const std::string parent = parentDirectory(path);
    if (parent != path && parent != "." && !directoryExists(parent) && !makeDirectories(parent))
        return false;
    return ::mkdir(path.c_str(), 0777) == 0 || errno == EEXIST;
}
