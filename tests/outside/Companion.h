// The companion beside the host, as far as the host tells it what to know and asks what it heard.
#pragma once

#import <Foundation/Foundation.h>

/// Its fields take anything, as a companion with a fault would fill them in.
@interface ZQNumberIdentity : NSObject {
    id _number, _identity, _source, _brandInfo;
    int _type, _numOfMark, _cloudDataType;
    float _rating;
}
@property(nonatomic, retain) id number;
@property(nonatomic, retain) id identity;
@property(nonatomic, retain) id source;
@property(nonatomic, retain) id brandInfo;
@property(nonatomic) int type;
@property(nonatomic) int numOfMark;
@property(nonatomic) int cloudDataType;
@property(nonatomic) float rating;
@end

@interface Stage : NSObject
/// Back to what the companion knows by itself; the add-on is told to forget what it has cached.
+ (void)reset;
+ (void)know:(ZQNumberIdentity *)identity of:(NSString *)number;
/// The call records of a number, by their action types.
+ (void)record:(NSArray *)actionTypes of:(NSString *)number;
/// The numbers of the address book's person who has this one.
+ (void)person:(NSArray *)numbers with:(NSString *)number;
/// The stored record of a call is that of another number.
+ (void)store:(NSString *)other for:(NSString *)number at:(NSDate *)date;
/// What an operation answers, nil included, and that it raises.
+ (void)let:(NSString *)operation answer:(id)value;
+ (void)raiseIn:(NSString *)operation;
+ (NSUInteger)timesAsked:(NSString *)operation;
/// The address opened since the last question, or nil.
+ (id)opened;
+ (void)announce:(NSString *)message;
/// The message that the add-on posted last.
+ (NSString *)posted;
@end

/// An operation's answer: what it was told, or else the usual one.
id answer(NSString *operation, id usual);
