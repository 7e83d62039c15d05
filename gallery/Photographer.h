#pragma once

#include <string>
#include <vector>

struct Entry;
struct Shelf;

/// Shows each entry alone and photographs it into `folder`, with an index README.md of the
/// pictures. Gives the names of the entries in which something went wrong: an assertion, a line in
/// the toolkit's log, a picture that could not be taken or in which there is nothing to see.
std::vector<std::string> PhotographAll(std::vector<Entry> const& entries, Shelf& shelf,
                                       std::string const& folder);
