#pragma once

/// What a user can set for the processes of the session, and what a package therefore does not go by. Main
/// thread, before the application object is made.
namespace ProcessEnvironment {

/// In packages: takes the variables away that steer Qt and the log, and looks for plug-ins and libraries in
/// the program's own folder and the system's alone. Does nothing in builds for developers.
void Close();

/// Takes away the variables that steer Qt and the log.
void RemoveSteering();

} // namespace ProcessEnvironment
