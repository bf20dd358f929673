// The one exception of the system: an ordinary run-time failure, in words.
#ifndef SONOTIK_FILES_RUNTIME_FAILURE_H_
#define SONOTIK_FILES_RUNTIME_FAILURE_H_

#include <stdexcept>

namespace sonotik {

// Thrown where something can't be done, caught at the boundary of the event handler in which it
// happened: that handler ends there, and the program goes on.
class RuntimeFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace sonotik

#endif  // SONOTIK_FILES_RUNTIME_FAILURE_H_
