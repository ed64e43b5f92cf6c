// SPDX-License-Identifier: MIT
#include "platform/faults.h"

namespace twk {

namespace {

TextView usual_text(int number) {
    switch (number) {
    case fault_argument: return u"Invalid procedure call or argument";
    case fault_overflow: return u"Overflow";
    case fault_memory: return u"Out of memory";
    case fault_subscript: return u"Subscript out of range";
    case fault_division: return u"Division by zero";
    case fault_type: return u"Type mismatch";
    case fault_file_not_found: return u"File not found";
    case fault_device_io: return u"Device I/O error";
    case fault_disk_full: return u"Disk full";
    case fault_past_end: return u"Input past end of file";
    case fault_file_permission: return u"Permission denied";
    case fault_path_access: return u"Path/File access error";
    case fault_path_not_found: return u"Path not found";
    case fault_null: return u"Invalid use of Null";
    case fault_field: return u"Item not found in this collection.";
    case fault_no_record: return u"No current record.";
    case fault_store_password: return u"Not a valid password.";
    case fault_dialog_cancelled: return u"Cancel was selected.";
    case fault_timed_out: return u"Request timed out";
    default: return u"Application-defined or object-defined error";
    }
}

} // namespace

RuntimeFault::RuntimeFault(int number, Text text)
    : number_(number), text_(std::move(text)), utf8_(to_utf8(text_)) {}

RuntimeFault::RuntimeFault(int number) : RuntimeFault(number, Text(usual_text(number))) {}

RuntimeFault told_fault(int number, TextView sentence) {
    return {number, Text(sentence) + u"\n" + Text(usual_text(number))};
}

Text fault_message(const RuntimeFault& fault) {
    Text message = u"Run-time error '" + from_utf8(std::to_string(fault.number())) + u"':\n\n" + fault.text();
    if (!fault.stage.empty()) message += u"\n\n" + fault.stage;
    if (!fault.page.empty()) message += u"\n\nPage: " + fault.page;
    return message;
}

} // namespace twk
