-- As Chromium 156 makes it.
CREATE TABLE network_action_predictor(id TEXT PRIMARY KEY, user_text TEXT, url TEXT, number_of_hits INTEGER, number_of_misses INTEGER);
CREATE TABLE resource_prefetch_predictor_metadata ( key TEXT, value INTEGER, PRIMARY KEY (key));
CREATE TABLE resource_prefetch_predictor_host_redirect ( key TEXT, proto BLOB, PRIMARY KEY(key));
CREATE TABLE resource_prefetch_predictor_origin ( key TEXT, proto BLOB, PRIMARY KEY(key));
CREATE TABLE lcp_critical_path_predictor ( key TEXT, proto BLOB, PRIMARY KEY(key));
CREATE TABLE lcp_critical_path_predictor_initiator_origin ( key TEXT, proto BLOB, PRIMARY KEY(key));
