#pragma once

#include <string>

namespace script {

// True when the expression is found in the text, both UTF-8. A search takes a bounded number of
// steps and a bounded amount of memory, whatever is asked. Throws WrongScript for a text that is no
// regular expression, and for a search that goes beyond these bounds.
bool Found(const std::string& pattern, const std::string& text);

}  // namespace script
