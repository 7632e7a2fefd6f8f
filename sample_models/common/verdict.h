// The verdict file that every model program leaves in its current directory.
#pragma once

#include <functional>
#include <string>

namespace model {

/// The bytes of a verdict: "0" for an empty `sentence`, else "1, " and the sentence, closed with CR LF.
/// A comma, a quotation mark or a control character in the sentence would cut it for the reader, so each
/// becomes harmless.
std::string verdict_text(const std::string& sentence);

/// Runs `work` and writes the verdict to the file `name`: success, or the words of what `work` threw.
/// Returns the exit code of the program: 0 also when the input was refused, because the verdict tells;
/// 1 only when the verdict itself could not be written.
int run_and_leave_verdict(const std::string& name, const std::function<void()>& work);

}  // namespace model
