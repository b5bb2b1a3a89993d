#pragma once

#include "IDFile.h"

/** Places and folders of the file system. Main thread only. */
class PUBLIC_DECL FileUtils {
  public:
    /** The host's folder in the user's roaming application data; kFalse when there is none. */
    static bool16 GetAppRoamingDataFolder(IDFile* folder);
    /** The folder that the application is installed in; kFalse when it is not known. */
    static bool16 GetAppFolder(IDFile* folder);
    /** Goes from a folder to an entry of it. */
    static void AppendPath(IDFile* folder, const PMString& name);
    /** Makes the folder (its parent must exist); kTrue when it is there afterwards. */
    static bool16 CreateFolderIfNeeded(const IDFile& folder);
    /** Whether a file or folder is there. */
    static bool16 DoesFileExist(const IDFile& file);
};
