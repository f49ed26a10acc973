#include "script/temporary_folder.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace tarnmill {

TemporaryFolder::TemporaryFolder() {
  std::string name = std::filesystem::temp_directory_path() / "tarnmill-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) {
    throw std::filesystem::filesystem_error{
        "no temporary folder can be made", name, {errno, std::generic_category()}};
  }
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace tarnmill
