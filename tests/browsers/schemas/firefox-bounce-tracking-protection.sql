-- As Firefox 153 makes it.
CREATE TABLE sites (originAttributeSuffix TEXT NOT NULL,siteHost TEXT NOT NULL, entryType INTEGER NOT NULL, timeStamp INTEGER NOT NULL, PRIMARY KEY (originAttributeSuffix, siteHost));
