#pragma once

#include "PMString.h"

/** The place of a file or folder, which need not exist. */
class PUBLIC_DECL IDFile {
  public:
    IDFile();
    IDFile(const IDFile& other);
    IDFile& operator=(const IDFile& other);
    ~IDFile();

    PMString GetString() const;
    void SetString(const PMString& fullPath);

  private:
    friend struct IDFilePath;  // the host's way to it
    struct Path;
    Path* fPath;
};
