#include "vba/syntax_report.h"

#include "vba/syntax.h"
#include "vba/tokenizer.h"

namespace zentlor::test {
namespace {

std::string Print(const std::vector<vba::SyntaxError>& errors, std::string vba::Sentence::*language, int firstLine) {
    std::string report;
    for (const vba::SyntaxError& error : errors) {
        report += std::to_string(error.line - firstLine + 1) + ":" + std::to_string(error.column) + " ";
        report += error.Words().*language + "\n";
    }
    return report;
}

}  // namespace

std::string SyntaxReport(TextView code) {
    return Print(vba::CheckSyntax(code, vba::Tokenize(code)), &vba::Sentence::english, 1);
}

std::string GermanSyntaxReport(TextView code) {
    return Print(vba::CheckSyntax(code, vba::Tokenize(code)), &vba::Sentence::german, 1);
}

std::string BodySyntaxReport(TextView statements) {
    const Text code = u"Sub Test(rs, x)\n" + Text(statements) + u"\nEnd Sub\n";
    return Print(vba::CheckSyntax(code, vba::Tokenize(code)), &vba::Sentence::english, 2);
}

}  // namespace zentlor::test
