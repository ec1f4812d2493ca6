#pragma once

#include <filesystem>

/// The folder in which the product is installed, in the hands of an installer. What goes wrong is written to
/// standard output.
class ProductFolder {
public:
    explicit ProductFolder(std::filesystem::path folder);

    /// Puts the front end's program aside, so that nobody starts it anew, ends all instances, and waits until
    /// no program uses a file of the folder. False when that takes too long; then the program is put back.
    bool Free();

    /// Puts the program back that Free has put aside, unless there is a new one in its place.
    void Restore();

    /// Moves what is in `with` here, instead of all that is here; false, with everything as it was, when one
    /// of the files cannot be moved. For a folder that is free, or missing; `with` lies on the same volume.
    bool Replace(const std::filesystem::path& with);

private:
    bool PutAside() const;
    bool AreFilesFree();

    std::filesystem::path m_folder;
    std::filesystem::path m_program;
    std::filesystem::path m_aside;
    std::filesystem::path m_busy;
};
