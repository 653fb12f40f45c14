#pragma once

// Annotated sources: VBA code in which a mark behind a line announces each hint that the line gets.
//
//     '= Modul Kunden              a component; Klasse, Formular and Dokument are the other kinds
//         Stop: Stop               '! Laden    '! Laden "part of the text"
//
// A mark behind a "'=" line announces a hint without a line. "-" stands for an empty procedure column. A file that
// expects nothing says so in its first line: '= expects nothing. The line '= RequireDeclaration TEXT sets what the
// editor's setting answers. Marks are taken out before the code is read, since the checks read comments.

#include <string>
#include <vector>

#include "core/utilities/text.h"

namespace zentlor::test {

struct FixtureComponent {
    Text name;
    int type = 0;
    Text code;
    int headerLine = 0;  ///< line of the fixture file that holds its "'=" line
};

struct ExpectedHint {
    Text component;  ///< empty for the hint about the editor's setting
    Text procedure;
    Text textPart;
    int line = 0;
    int fixtureLine = 0;
};

struct Fixture {
    std::vector<FixtureComponent> components;
    std::vector<ExpectedHint> expected;
    Text requireDeclaration = u"1";
    bool expectsNothing = false;
};

/// Throws std::runtime_error for a fixture that is not of this form.
Fixture ParseFixture(const std::string& utf8);

}  // namespace zentlor::test
