#include "core/files/FileMoving.h"

#include <cmath>
#include <cstdio>
#include <fstream>
#include <sys/stat.h>

namespace skyvane {

namespace {

bool isSameFile(const std::string& a, const std::string& b) {
    struct stat statusA;
    struct stat statusB;
    return stat(a.c_str(), &statusA) == 0 && stat(b.c_str(), &statusB) == 0 && statusA.st_dev == statusB.st_dev &&
           statusA.st_ino == statusB.st_ino;
}

bool copyFile(const FilePair& pair) {
    if (isSameFile(pair.first, pair.second))
        return false;
    std::ifstream in(pair.first, std::ios::binary);
    if (!in.is_open())
        return false;
    std::ofstream out(pair.second, std::ios::binary | std::ios::trunc);
    if (!out.is_open())
        return false;
    char bytes[512];
    while (out && (in.read(bytes, sizeof bytes) || in.gcount() > 0))
        out.write(bytes, in.gcount());
    const bool isComplete = in.eof() && !in.bad();
    in.close();
    out.close();
    return isComplete && out.good();
}

} // namespace

std::list<FilePair> copyFilePairs(const std::list<FilePair>& pairs, const std::function<void(double)>& progress) {
    std::list<FilePair> done;
    double shown = -1.0;
    for (const FilePair& pair : pairs) {
        const double share = static_cast<double>(done.size()) / static_cast<double>(pairs.size());
        if (std::fabs(share - shown) > 0.01) {
            progress(share);
            shown = share;
        }
        if (!copyFile(pair))
            break;
        done.push_back(pair);
    }
    return done;
}

std::string copyProgressText(double share) {
    return "Copying files: " + std::to_string(static_cast<int>(share * 100.0 + 0.5)) + "%";
}

void removeListedFiles(const std::string& listPath) {
    {
        std::ifstream list(listPath, std::ios::binary);
        for (std::string path; std::getline(list, path);)
            if (!path.empty() && path.find('\0') == std::string::npos)
                std::remove(path.c_str());
    }
    std::remove(listPath.c_str());
}

} // namespace skyvane
