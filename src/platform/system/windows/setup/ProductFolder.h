#pragma once

#include <filesystem>

/// The folder in which the product is installed, in the hands of an installer. What goes wrong is written to
/// standard output.
class ProductFolder {
public:
    explicit ProductFolder(std::filesystem::path folder);

    /// Puts back what a run that was killed has left in the old place. Waits until no other program holds a
    /// file of the folder open. Then puts the front end's program aside, so that nobody starts it anew, ends
    /// all instances, and waits until no program uses a file. False when one of the two takes too long; then
    /// the program is in its place.
    bool Free();

    /// Puts the program back that Free has put aside, unless there is a new one in its place.
    void Restore();

    /// Moves what is in `with` here, instead of all that is here; false, with everything as it was, when one
    /// of the files cannot be moved. For a folder that is free, or missing; `with` lies on the same volume.
    bool Replace(const std::filesystem::path& with);

private:
    /// While the program is in its place, the product is whole: Replace moves it away first and here last.
    void Recover() const;
    /// Ends what runs there, each by `end`; true when nothing does any more. To be tried again.
    bool EndInstances(void (*end)(unsigned long));
    bool PutAside() const;
    /// Whether this access, and at the same time no other one, is given to each file.
    bool AreFilesFree(unsigned long access);

    std::filesystem::path m_folder;
    std::filesystem::path m_program;
    std::filesystem::path m_aside;
    std::filesystem::path m_old;
    std::filesystem::path m_busy;
};
