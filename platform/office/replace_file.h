// How a file is replaced so that at every moment the old or the new one is there, whole.
#pragma once

#include <filesystem>
#include <functional>

namespace ovindra::office {

/// Lets `write` fill an empty file beside the target, brings it to the disk and moves it over the target.
/// Where any of it fails the target is as it was, the file beside it is gone, and error 75 is thrown; a
/// RuntimeError of `write` is passed on. A target that may not be written is not replaced either. What a
/// program that was killed has left in the folder is removed.
void ReplaceFile(const std::filesystem::path& target,
                 const std::function<void(const std::filesystem::path& beside)>& write);

}  // namespace ovindra::office
