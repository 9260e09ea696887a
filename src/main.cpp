#include "driver/driver.hpp"
#include "driver/room.hpp"

int main(int argc, char** argv) {
    return brix_run_with_room(brix_main, argc, argv);
}
