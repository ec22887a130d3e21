#include "courseplot/CoursePlot.h"

#include <iostream>

/// courseplot FOLDER: pictures of the paths of procedures of every kind, for people to look at.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "courseplot FOLDER: draws the paths of procedures of every kind into a folder that exists.\n";
        return 2;
    }
    const std::string folder = std::string(argv[1]) + "/";
    if (skyvane::plotNavigation(folder) && skyvane::plotApproaches(folder))
        return 0;
    std::cerr << "courseplot: a picture can't be written into " << folder << '\n';
    return 1;
}
