// What the start needs from the disk, begun on another core the moment the
// program starts, while Qt connects to the screen: binding the two
// companion libraries, reading the font configuration, and listing the
// sets. The start then finds the libraries bound and takes the listing;
// nothing it does or shows changes.
#pragma once

#include "select/QuestionSetList.h"

#include <future>

class StartupPrefetch {
public:
    // Begins at once. The application's name must be set already: the
    // listing's cache lies in the user's cache folder named after it.
    StartupPrefetch();
    // Waits for what is still under way; the libraries stay bound only as
    // long as whoever loaded them since keeps them.
    ~StartupPrefetch();
    StartupPrefetch(const StartupPrefetch &) = delete;
    StartupPrefetch &operator=(const StartupPrefetch &) = delete;

    // The sets of the program and documents folders (waiting for them);
    // once only, after that an empty listing.
    SetListing takeSetListing();

private:
    struct Bound;
    // Destroyed last: waits for the binding, then lets it go.
    std::future<std::unique_ptr<Bound>> libraries_;
    std::future<SetListing> listing_;
    std::future<void> fontConfiguration_;
};
