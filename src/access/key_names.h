// The keys' names by their Windows virtual-key codes, as people call them.
#ifndef SONOTIK_ACCESS_KEY_NAMES_H_
#define SONOTIK_ACCESS_KEY_NAMES_H_

#include <string>

namespace sonotik {

// Empty for a code that is no key's.
std::string KeyName(int virtual_key);

}  // namespace sonotik

#endif  // SONOTIK_ACCESS_KEY_NAMES_H_
