// Makes a project file of many solved inlets, to measure and to try things on.
//
//   make_project TEMPLATE TABLE PATH INLETS

#include <exception>
#include <iostream>
#include <string>

#include "tools/project_maker.h"

int main(int argc, char** argv) {
    if (argc != 5) {
        std::cerr << "usage: make_project TEMPLATE TABLE PATH INLETS\n";
        return 2;
    }
    try {
        gullymark::tools::make_project(argv[1], argv[2], argv[3], std::stoul(argv[4]));
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
