#pragma once

class ProjectEditor;
class QString;
struct Project;
struct ProjectDocument;

/// The document of a project, without its images. Samples are not copied: those that arrive while the document is
/// written belong to the next file. The project's measurements must outlive the document.
[[nodiscard]] ProjectDocument documentOf(const Project &project);

/// The same without samples; cheap.
[[nodiscard]] ProjectDocument settingsDocumentOf(const Project &project);

/// Puts a document that was read from a file into a project that was cleared; what the document lacks stays as it is.
/// Images are not looked at; samples are taken out of the document. `editor` changes the same project: each element of
/// a list goes to a setter of it. `function` is the one that other log lines name.
void applyDocument(ProjectDocument &document, const QString &absolutePath, ProjectEditor &editor, Project &project,
                   const char *function);
