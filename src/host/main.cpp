#include "app/UserApp.h"

int main(int argc, char** argv) {
    return UserApp::Run(argc, argv);
}
