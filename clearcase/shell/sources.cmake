# The units of clearcase/shell, one line each.
