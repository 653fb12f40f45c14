#pragma once

// The forms in which `zentlor check` prints hints. A report gets one project after the other and is a text at the end.

#include <functional>
#include <memory>
#include <string>

#include "cli/arguments.h"
#include "core/analysis/session.h"
#include "workspace/workspace.h"

namespace zentlor::cli {

class Report {
  public:
    virtual ~Report() = default;
    /// Takes the hints of `session`'s list, which are those of `project`; called once for each project that was
    /// checked.
    virtual void AddProject(Session& session, const workspace::OpenedProject& project) = 0;
    /// Takes the closing texts of a project's run, which only a report for people shows.
    virtual void AddStatus(const workspace::OpenedProject& project, const std::string& hints,
                           const std::string& duration) = 0;
    /// The report, or what no `PieceWriter` has got of it, in the bytes in which it is written. `opened` is everything
    /// that was read.
    virtual std::string Finish(Session& session, const workspace::Workspace& opened) = 0;
};

/// Gets the beginning of a report that is still growing.
using PieceWriter = std::function<void(const std::string& bytes)>;

/// `format`: text, jsonl, txt or csv. `colour`: whether the text goes to a terminal that shows colours. `writePiece`,
/// if it is not empty, gets a long report piece by piece, where its form allows that: a million hints are hundreds of
/// megabytes of text.
std::unique_ptr<Report> MakeReport(const std::string& format, bool colour, PieceWriter writePiece = {});

/// One JSON string with its quotation marks.
void AppendJsonString(TextView text, std::string& out);

/// A sentence on how much was read: projects, modules, lines, and what gave nothing.
std::string ReadSummary(const workspace::Workspace& opened, int sprache);

}  // namespace zentlor::cli
