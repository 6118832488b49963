# Run by tidiness.sh: perl tidiness_units.pl SOURCE_FOLDER BUILD_FOLDER
# Prints every source that the build compiles, and behind a tab the sum of all that its findings depend on: its call, itself
# and the project's files that it includes. What the build joins by including sources is written to BUILD_FOLDER/tidy as
# one text, since some findings are told of no text that is included; the tests of a folder are one text, however many the
# build makes of them, since most of their time goes into what all of them include. BUILD_FOLDER/tidy/compile_commands.json
# has the calls.
#
#   perl tidiness_units.pl --findings UNIT     tells the findings in a joined text, read from standard input, of its sources
use strict;
use warnings;
use Digest::SHA qw(sha256_hex);
use File::Basename qw(dirname);
use File::Path qw(make_path);

sub contents {
    my ($path) = @_;
    open(my $file, '<:raw', $path) or die "$path: $!\n";
    local $/;
    return scalar(<$file>) // '';
}

sub write_file {
    my ($path, $text) = @_;
    make_path(dirname($path));
    open(my $file, '>:raw', $path) or die "$path: $!\n";
    print $file $text;
    close($file) or die "$path: $!\n";
}

# Between the parts of a joined text; what follows is the first line of a source.
my $seam = qr{^// The text of (/.+)$};

sub tell_findings {
    my ($unit) = @_;
    my ($source, $line, @origin);
    for (split /\n/, contents($unit)) {
        ($source, $line) = /$seam/ ? ($1, 0) : ($source, ($line // 0) + 1);
        push @origin, ($source // $unit) . ":$line";
    }
    while (<STDIN>) {
        s{^\Q$unit\E:(\d+)}{$origin[$1 - 1]};
        print;
    }
}

# join_sources TARGET UNITY_SOURCES: the folders of what was joined, whose headers are included by their plain name.
sub join_sources {
    my ($target, @unity_sources) = @_;
    my ($text, %folders) = ('');
    for my $source (map { contents($_) =~ /^#include "(.+)"$/mg } @unity_sources) {
        $text .= "// The text of $source\n" . contents($source);
        $folders{dirname($source)} = 1;
    }
    write_file($target, $text);
    return sort keys %folders;
}

# What each object was made from, as the build noted it.
sub read_parts {
    my ($build) = @_;
    my (%parts_of, $object);
    for (`ninja -C "$build" -t deps`) {
        if (/^(\S+): .*\((\w+)\)$/) {
            $object = $2 eq 'VALID' ? $1 : undef;
        } elsif (defined $object && m{^ +(\S.*)} && $1 !~ m{^/usr/}) {
            push @{$parts_of{$object}}, $1;
        }
    }
    return \%parts_of;
}

# What the build compiles: each unit with its call, its objects, and the sources that are joined in it.
sub read_calls {
    my ($top, $build) = @_;
    my (@units, %joined, $call);
    # CMake gives each key of an entry its line.
    for (split /\n/, contents("$build/compile_commands.json")) {
        $call = $1 if /^ *"command": "(.*)",?$/;
        next unless /^ *"file": "(.*?)"/;
        my $source = $1;
        my ($object) = $call =~ / -o (\S+)/ or die "no object of $source\n";
        if ($source =~ m{^\Q$build\E/(.*)CMakeFiles/(.*)\.dir/Unity/unity_(\d+)_cxx\.cxx$}) {
            my $name = "$build/tidy/$1$2" . ($1 =~ /^(tests|fuzz)/ ? '' : "_$3") . '.cpp';
            push @units, $joined{$name} = {name => $name, call => $call} unless $joined{$name};
            push @{$joined{$name}{objects}}, $object;
            push @{$joined{$name}{sources}}, $source;
        } elsif ($source =~ m{^\Q$top\E/(src|tests|tools|bench|fuzz)/}) {
            push @units, {name => $source, call => $call, objects => [$object]};
        }
    }
    return @units;
}

sub list_units {
    my ($top, $build) = @_;
    my $parts_of = read_parts($build);
    my $rules = join('', map { contents("$top/$_") } '.clang-tidy', 'tests/checks/tidiness.sh', 'tests/checks/tidiness_units.pl');
    my (@entries, %sum_of);
    for my $unit (read_calls($top, $build)) {
        my ($name, $call, @objects) = ($unit->{name}, $unit->{call}, @{$unit->{objects}});
        if ($unit->{sources}) {
            my $headers = join(' ', map { "-iquote $_" } join_sources($name, @{$unit->{sources}}));
            $call =~ s{ -c .*}{ $headers -c $name};
        }
        push @entries, qq({ "directory": "$build", "command": "$call", "file": "$name" });
        # Without a note of its parts a source is always looked at.
        my $sum = 'unknown';
        unless (grep { !$parts_of->{$_} } @objects) {
            my %parts = map { $_ => 1 } map { @{$parts_of->{$_}} } @objects;
            $sum_of{$_} //= sha256_hex(contents(m{^/} ? $_ : "$build/$_")) for keys %parts;
            $sum = sha256_hex(join("\n", $rules, $call, map { "$_ $sum_of{$_}" } sort keys %parts));
        }
        print "$name\t$sum\n";
    }
    write_file("$build/tidy/compile_commands.json", "[\n" . join(",\n", @entries) . "\n]\n");
}

$ARGV[0] eq '--findings' ? tell_findings($ARGV[1]) : list_units(@ARGV);
