#include "flightfeed/command/Command.h"

int main(int argc, char** argv) {
    return skyvane::runFlightFeed({argv + 1, argv + argc});
}
