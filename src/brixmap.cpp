#include "driver/room.hpp"
#include "map/map_cli.hpp"

int main(int argc, char** argv) {
    return brix_run_with_room(brixmap_main, argc, argv);
}
