#include "driver/driver.hpp"

int main(int argc, char** argv) {
    return brix_main(argc, argv);
}
