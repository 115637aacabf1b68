#include "battle/record/RecordFile.h"

#include <cstdio>
#include <filesystem>

#include "battle/record/BattleRecord.h"
#include "battle/record/RecordWords.h"

namespace skylob {

RecordFile::RecordFile(const std::string& name) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(name, error);
    const auto status = std::filesystem::status(path, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw RecordError{"it is no file"};
    m_name = path.string();
    checkContent();
    m_file.open(m_name, std::ios::binary | std::ios::app);
    if (!m_file) throw RecordError{"it cannot be written"};
}

void RecordFile::checkContent() const {
    std::ifstream present{m_name, std::ios::binary};
    std::string line;
    if (std::getline(present, line) && line != kRecordTitle)
        throw RecordError{"it holds something else than a recording"};
}

void RecordFile::write(const std::string& text, bool startsSet) {
    if (startsSet) {
        m_file.close();
        m_file.clear();
        m_file.open(m_name, std::ios::binary | std::ios::trunc);
    }
    m_file << text << std::flush;
    if (m_file || m_hasFailed) return;
    m_hasFailed = true;
    std::fprintf(stderr, "skylob: the recording '%s' cannot be written\n", m_name.c_str());
}

}  // namespace skylob
