# The units of clearcase/actions, one line each.
