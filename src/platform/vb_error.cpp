#include "platform/vb_error.h"

namespace vb {

std::string description(int number) {
    switch (number) {
    case InvalidCall:
        return "Invalid procedure call or argument";
    case Overflow:
        return "Overflow";
    case OutOfMemory:
        return "Out of memory";
    case SubscriptOutOfRange:
        return "Subscript out of range";
    case DivisionByZero:
        return "Division by zero";
    case TypeMismatch:
        return "Type mismatch";
    case BadFileNameOrNumber:
        return "Bad file name or number";
    case FileNotFound:
        return "File not found";
    case BadFileMode:
        return "Bad file mode";
    case FileAlreadyOpen:
        return "File already open";
    case InputPastEnd:
        return "Input past end of file";
    case BadRecordNumber:
        return "Bad record number";
    case PathFileAccess:
        return "Path/File access error";
    case InvalidPropertyValue:
        return "Invalid property value";
    case InvalidPicture:
        return "Invalid picture";
    case CancelSelected:
        return "Cancel was selected.";
    default:
        return "Application-defined or object-defined error";
    }
}

} // namespace vb
