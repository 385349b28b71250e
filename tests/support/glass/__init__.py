"""A searching glass for the traces that browsers leave. See README.md."""
