#pragma once

#include <string>
#include <string_view>

/// Replaces a file's contents in one step: the bytes go to a temporary file beside it, which
/// is renamed over the target only when complete. On failure the old file is untouched.
bool writeFileAtomically(const std::string& path, std::string_view bytes, std::string& error);

/// Reads a whole file. False with a reason when it cannot be read.
bool readWholeFile(const std::string& path, std::string& bytes, std::string& error);

bool fileExists(const std::string& path);
bool directoryExists(const std::string& path);
/// The folder part of a path ("." for a bare name).
std::string parentDirectory(const std::string& path);
/// Creates a folder and its missing parents; true when it exists afterwards.
bool makeDirectories(const std::string& path);
