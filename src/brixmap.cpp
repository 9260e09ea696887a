#include "map/map_cli.hpp"

int main(int argc, char** argv) {
    return brixmap_main(argc, argv);
}
