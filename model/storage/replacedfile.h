#pragma once

#include <QString>

#include <functional>

/// Holds on to a file that is about to be replaced. Freeing a large one takes the system so long that the window would
/// freeze; so its space is given back bit by bit. Does nothing on systems other than Linux.
class ReplacedFile
{
public:
    explicit ReplacedFile(const QString &fileName);
    ~ReplacedFile();
    Q_DISABLE_COPY_MOVE(ReplacedFile)

    /// Only if the file has no other name and nobody else has it open. `pause` is called often.
    void free(const std::function<void()> &pause) const;

private:
    int m_handle = -1;
};
