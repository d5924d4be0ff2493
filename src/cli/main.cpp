#include "cli/Command.h"

int main(int argc, char** argv) {
    return orvane::cli::runCommand(argc, argv);
}
