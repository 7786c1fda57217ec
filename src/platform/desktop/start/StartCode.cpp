#include "platform/desktop/start/StartCode.h"

#include <cerrno>

namespace orvanta {

StartCode CodeOfError(int error) {
  switch (error) {
    case 0: return StartCode::Started;
    case ENOENT: return StartCode::FileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP: return StartCode::PathNotFound;
    case EACCES:
    case EPERM: return StartCode::AccessDenied;
    // Too many arguments, open files or processes are also a lack of resources.
    case ENOMEM:
    case EAGAIN:
    case EMFILE:
    case ENFILE:
    case E2BIG: return StartCode::OutOfMemory;
    case ENOEXEC:
    case ELIBBAD:
    case EINVAL:
    case EISDIR: return StartCode::BadProgram;
    case ETXTBSY: return StartCode::SharingViolation;
    default: return StartCode::Unknown;
  }
}

}  // namespace orvanta
