#include "chartmaker/command/ChartMaker.h"

int main(int argc, char** argv) {
    return skyvane::runChartMaker({argv + 1, argv + argc});
}
