#include "shell/start.h"

int main(int argc, char** argv) {
    return quorvel::shell::runEditor(argc, argv);
}
