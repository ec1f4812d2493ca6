#include "app/UserApp.h"
#include "platform/system/SystemCrash.h"

#include <exception>

int main(int argc, char** argv) {
    try {
        return UserApp::Run(argc, argv);
    } catch (const std::exception& error) {
        SystemCrash::Native().TellEnd(error.what());
    } catch (...) {
        SystemCrash::Native().TellEnd("an exception of a type that is not known");
    }
    return 1;
}
